#include "settings/setting.h"
#include "tests/support/modalanswer.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QRadioButton>
#include <QSettings>
#include <QShowEvent>
#include <QToolButton>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

namespace
{

template<class Widget> Widget *part(const Setting &setting, const char *name)
{
    return setting.findChild<Widget *>(name);
}

QString path()
{
    return QDir::homePath() + "/.hollin_orvane.ini";
}

void writeFile(const QByteArray &content)
{
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

// What a person sees: timer, delay, series, preview, resolution, where to save.
QString shown(const Setting &setting)
{
    return QString("%1 %2 %3 %4 %5 %6")
        .arg(part<QCheckBox>(setting, "chbAutoShooting")->isChecked())
        .arg(part<QComboBox>(setting, "cmbAutoShooting")->currentText(),
             part<QComboBox>(setting, "cmbContinuousShooting")->currentText())
        .arg(part<QCheckBox>(setting, "chbPhotoPreview")->isChecked())
        .arg(part<QComboBox>(setting, "cmbResolution")->currentText(),
             part<QRadioButton>(setting, "rbtnCustom")->isChecked() ? setting.getSaveDirectory() : "default");
}

} // namespace

class TestSetting : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void showsTheFile_data();
    void showsTheFile();
    void anythingInPlaceOfTheFileGivesDefaults();
    void writesOnlyWhenToldAndForgetsWhenCancelled();
    void resolutionsOfTheCamera();
    void checksTheSaveLocation();
    void switchesBetweenLocations();
    void hasItsSizeAndPlace();
};

void TestSetting::init()
{
    QFile::remove(path());
    QDir(path()).removeRecursively();
}

void TestSetting::showsTheFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QByteArray &content, const char *expected) {
        QTest::newRow(name) << content << expected;
    };
    row("no keys", "[General]\n", "1 5 4 1 640x480 default");
    row("all",
        "[General]\nAutoShoot=0\nAutoShootTime=30\nContinuShootCount=9\nPhotoPreview=0\nResolution=640x480\n"
        "SaveDirectory=/tmp\n",
        "0 30 9 0 640x480 /tmp");
    row("accepted, but no choice", "AutoShootTime=7\nContinuShootCount=5\n", "1 1 2 1 640x480 default");
    row("out of range",
        "AutoShoot=2\nAutoShootTime=31\nContinuShootCount=12\nPhotoPreview=-1\nResolution=1x1\n",
        "1 5 4 1 640x480 default");
    row("words are zero", "AutoShoot=yes\nAutoShootTime=x\nContinuShootCount=\nPhotoPreview=y\n",
        "0 5 4 0 640x480 default");
    row("damaged", QByteArray("\x00\xff]]==\nAutoShootTime=10\n[Gen", 30), "1 10 4 1 640x480 default");
}

void TestSetting::showsTheFile()
{
    QFETCH(QByteArray, content);
    writeFile(content);
    Setting setting;
    QTEST(shown(setting), "expected");
    // Saving heals whatever the file was.
    part<QComboBox>(setting, "cmbAutoShooting")->setCurrentIndex(6);
    const QString before = shown(setting);
    setting.SaveFile();
    QCOMPARE(shown(Setting()), before);
}

void TestSetting::anythingInPlaceOfTheFileGivesDefaults()
{
    const QByteArray file = path().toLocal8Bit();
    for (const QString kind : {"nothing", "folder", "pipe", "loop", "huge", "device"}) {
        init();
        if (kind == "folder")
            QVERIFY(QDir().mkpath(path()));
        else if (kind == "pipe")
            QCOMPARE(mkfifo(file.constData(), 0600), 0);
        else if (kind == "loop" || kind == "device")
            QCOMPARE(symlink(kind == "loop" ? file.constData() : "/dev/zero", file.constData()), 0);
        else if (kind == "huge")
            writeFile("AutoShootTime=10\n");
        QVERIFY(kind != "huge" || QFile::resize(path(), 8LL << 30));
        QElapsedTimer clock;
        clock.start();
        Setting setting;
        QCOMPARE(shown(setting), QString("1 5 4 1 640x480 default"));
        setting.SaveFile();
        QVERIFY2(clock.elapsed() < 1000, qPrintable(kind));
    }
}

void TestSetting::writesOnlyWhenToldAndForgetsWhenCancelled()
{
    Setting setting;
    setting.show();
    auto *delay = part<QComboBox>(setting, "cmbAutoShooting");
    delay->setCurrentIndex(0);
    // The window comes back from its icon.
    QShowEvent restored;
    QSpontaneKeyEvent::setSpontaneous(&restored);
    QCoreApplication::instance()->notify(&setting, &restored);
    QCOMPARE(setting.getAutoShootingTime(), 1);
    part<QPushButton>(setting, "btnCancel")->click();
    QCOMPARE(setting.result(), int(QDialog::Rejected));
    setting.show();
    QCOMPARE(setting.getAutoShootingTime(), 5);
    part<QCheckBox>(setting, "chbAutoShooting")->click();
    QVERIFY(!delay->isEnabled());
    part<QPushButton>(setting, "btnOk")->click();
    QCOMPARE(setting.result(), int(QDialog::Accepted));
    QVERIFY(!QFile::exists(path()));
    setting.SaveFile();
    const QSettings file(path(), QSettings::IniFormat);
    QStringList values;
    for (const char *key :
         {"AutoShoot", "AutoShootTime", "ContinuShootCount", "PhotoPreview", "Resolution", "SaveDirectory"})
        values << file.value(key, "missing").toString();
    QCOMPARE(values, (QStringList{"0", "5", "4", "1", "640x480", ""}));
}

void TestSetting::resolutionsOfTheCamera()
{
    Setting setting;
    auto *combo = part<QComboBox>(setting, "cmbResolution");
    setting.setResolutionList({});
    QCOMPARE(combo->count(), 1);
    setting.setResolutionList({"640x480", "640x480", "1280x720"});
    QCOMPARE(combo->count(), 2);
    QCOMPARE(setting.getResolution(), QString("1280x720"));
    setting.setResolutionList({"640x480", "640x480", "640x480", "1280x720", "640x480"});
    QCOMPARE(combo->currentIndex(), -1);

    writeFile("Resolution=1280x720\n");
    setting.readFile();
    setting.setResolutionList({"1280x720", "1920x1080", "640x480"});
    QCOMPARE(setting.getResolution(), QString("1280x720"));
    setCurrentIndex(combo, "1280X720");
    QCOMPARE(combo->currentIndex(), -1);
}

void TestSetting::checksTheSaveLocation()
{
    const struct {
        QString directory;
        QString warning; // none: accepted
    } table[] = {
        {"", "Please specify the save location."},
        {"/no/such/folder", "Invalid PATH is specified."},
        {"/", "Invalid PATH is specified."},
        {QDir::homePath(), ""},
    };
    for (const auto &row : table) {
        Setting setting;
        setting.show();
        part<QRadioButton>(setting, "rbtnCustom")->click();
        part<QLineEdit>(setting, "txbSaveDirectory")->setText(row.directory);
        const ModalAnswer answer;
        part<QPushButton>(setting, "btnOk")->click();
        QCOMPARE(answer.text(), row.warning);
        QCOMPARE(setting.isVisible(), !row.warning.isEmpty());
        QCOMPARE(setting.getSaveDirectory(), row.directory);
    }
}

void TestSetting::switchesBetweenLocations()
{
    writeFile("SaveDirectory=/tmp\n");
    Setting setting;
    auto *line = part<QLineEdit>(setting, "txbSaveDirectory");
    auto *browse = part<QToolButton>(setting, "tolSaveDirectory");
    QVERIFY(line->isEnabled() && browse->isEnabled());
    part<QRadioButton>(setting, "rbtnDefault")->click();
    QVERIFY(!line->isEnabled() && !browse->isEnabled());
    QCOMPARE(line->text(), QDir::homePath());
    part<QRadioButton>(setting, "rbtnCustom")->click();
    QVERIFY(line->isEnabled() && browse->isEnabled());
    QCOMPARE(line->text(), QString("/tmp"));

    // Once the owner has decided about the button, the choice no longer does.
    for (bool enabled : {false, true}) {
        setting.setBtnSaveEnable(enabled);
        for (const char *choice : {"rbtnDefault", "rbtnCustom"}) {
            part<QRadioButton>(setting, choice)->click();
            QCOMPARE(browse->isEnabled(), enabled);
        }
    }
}

void TestSetting::hasItsSizeAndPlace()
{
    QWidget window;
    window.setGeometry(200, 100, 800, 600);
    window.show();
    Setting setting(&window);
    setting.show();
    QVERIFY(QTest::qWaitForWindowActive(&setting));
    QCOMPARE(setting.minimumSize(), QSize(413, 376));
    QCOMPARE(setting.maximumSize(), QSize(413, 376));
    QVERIFY(window.frameGeometry().contains(setting.frameGeometry()));
    QTest::keyClick(&setting, Qt::Key_Escape);
    QVERIFY(!setting.isVisible());
}

QTEST_MAIN(TestSetting)
#include "tst_setting.moc"
