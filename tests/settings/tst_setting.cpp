#include "settings/setting.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
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
    void anythingInPlaceOfTheFileGivesDefaults_data();
    void anythingInPlaceOfTheFileGivesDefaults();
    void writesOnlyWhenToldAndForgetsWhenCancelled();
    void resolutionsOfTheCamera();
    void checksTheSaveLocation_data();
    void checksTheSaveLocation();
    void switchesBetweenLocations();
    void theDelayNeedsTheTimer();
    void hasItsSizeAndNames();
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
    QTest::newRow("no keys") << QByteArray("[General]\n") << "1 5 4 1 640x480 default";
    QTest::newRow("all")
        << QByteArray("[General]\nAutoShoot=0\nAutoShootTime=30\nContinuShootCount=9\nPhotoPreview=0\n"
                      "Resolution=640x480\nSaveDirectory=/tmp\n")
        << "0 30 9 0 640x480 /tmp";
    QTest::newRow("accepted, but no choice")
        << QByteArray("AutoShootTime=7\nContinuShootCount=5\n") << "1 1 2 1 640x480 default";
    QTest::newRow("first choice") << QByteArray("AutoShootTime=1\nContinuShootCount=2\n")
                                  << "1 1 2 1 640x480 default";
    QTest::newRow("out of range")
        << QByteArray("AutoShoot=2\nAutoShootTime=31\nContinuShootCount=12\nPhotoPreview=-1\n")
        << "1 5 4 1 640x480 default";
    QTest::newRow("words are zero")
        << QByteArray("AutoShoot=yes\nAutoShootTime=x\nContinuShootCount=\nPhotoPreview=y\n")
        << "0 5 4 0 640x480 default";
    QTest::newRow("unknown resolution") << QByteArray("Resolution=12x9\n") << "1 5 4 1 640x480 default";
    QTest::newRow("damaged") << QByteArray("\x00\xff]]==\nAutoShootTime=10\n[Gen", 30)
                             << "1 10 4 1 640x480 default";
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

void TestSetting::anythingInPlaceOfTheFileGivesDefaults_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"nothing", "folder", "pipe", "loop", "unreadable", "huge", "device"})
        QTest::newRow(kind) << kind;
}

void TestSetting::anythingInPlaceOfTheFileGivesDefaults()
{
    QFETCH(QString, kind);
    const QByteArray file = path().toLocal8Bit();
    if (kind == "folder")
        QVERIFY(QDir().mkpath(path()));
    else if (kind == "pipe")
        QCOMPARE(mkfifo(file.constData(), 0600), 0);
    else if (kind == "loop")
        QCOMPARE(symlink(file.constData(), file.constData()), 0);
    else if (kind == "device")
        QCOMPARE(symlink("/dev/zero", file.constData()), 0);
    else if (kind == "unreadable" || kind == "huge")
        writeFile("AutoShootTime=10\n");
    if (kind == "unreadable") {
        if (geteuid() == 0)
            QSKIP("nothing is unreadable for the superuser");
        QCOMPARE(chmod(file.constData(), 0), 0);
    }
    if (kind == "huge")
        QVERIFY(QFile::resize(path(), 8LL << 30));

    QElapsedTimer clock;
    clock.start();
    Setting setting;
    QCOMPARE(shown(setting), QString("1 5 4 1 640x480 default"));
    part<QComboBox>(setting, "cmbAutoShooting")->setCurrentIndex(6);
    setting.SaveFile();
    QVERIFY(clock.elapsed() < 1000);
    if (kind == "nothing" || kind == "huge")
        QCOMPARE(Setting().getAutoShootingTime(), 15);
}

void TestSetting::writesOnlyWhenToldAndForgetsWhenCancelled()
{
    Setting setting;
    setting.show();
    auto *delay = part<QComboBox>(setting, "cmbAutoShooting");
    delay->setCurrentIndex(0);
    part<QPushButton>(setting, "btnCancel")->click();
    QCOMPARE(setting.result(), int(QDialog::Rejected));
    QVERIFY(!QFile::exists(path()));
    QCOMPARE(setting.getAutoShootingTime(), 1);
    setting.show();
    QCOMPARE(setting.getAutoShootingTime(), 5);

    part<QRadioButton>(setting, "rbtnCustom")->click();
    part<QLineEdit>(setting, "txbSaveDirectory")->setText(QDir::tempPath());
    part<QRadioButton>(setting, "rbtnDefault")->click();
    part<QPushButton>(setting, "btnOk")->click();
    QCOMPARE(setting.result(), int(QDialog::Accepted));
    QVERIFY(!QFile::exists(path()));
    setting.SaveFile();
    const QSettings file(path(), QSettings::IniFormat);
    QStringList keys = file.childKeys();
    keys.sort();
    QCOMPARE(keys, (QStringList{"AutoShoot", "AutoShootTime", "ContinuShootCount", "PhotoPreview",
                                "Resolution", "SaveDirectory"}));
    QCOMPARE(file.value("SaveDirectory").toString(), QString());
    QCOMPARE(file.value("AutoShootTime").toInt(), 5);
    QCOMPARE(file.value("Resolution").toString(), QString("640x480"));
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
    part<QComboBox>(setting, "cmbContinuousShooting")->setCurrentIndex(-1);
    QCOMPARE(setting.getContinuousShooting(), -1);
}

void TestSetting::checksTheSaveLocation_data()
{
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QString>("warning"); // none: accepted
    QTest::newRow("empty") << ""
                           << "Please specify the save location.";
    QTest::newRow("missing") << "/no/such/folder"
                             << "Invalid PATH is specified.";
    QTest::newRow("root") << "/"
                          << "Invalid PATH is specified.";
    QTest::newRow("writable") << QDir::homePath() << "";
}

void TestSetting::checksTheSaveLocation()
{
    QFETCH(QString, directory);
    QFETCH(QString, warning);
    Setting setting;
    setting.show();
    part<QRadioButton>(setting, "rbtnCustom")->click();
    part<QLineEdit>(setting, "txbSaveDirectory")->setText(directory);
    QString warned;
    QTimer::singleShot(0, &setting, [&] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            warned = box->text();
            box->accept();
        }
    });
    part<QPushButton>(setting, "btnOk")->click();
    QCOMPARE(warned, warning);
    QCOMPARE(setting.isVisible(), !warning.isEmpty());
    QCOMPARE(setting.getSaveDirectory(), directory);
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
        part<QRadioButton>(setting, "rbtnDefault")->click();
        part<QRadioButton>(setting, "rbtnCustom")->click();
        part<QRadioButton>(setting, "rbtnDefault")->click();
        QCOMPARE(browse->isEnabled(), enabled);
    }
}

void TestSetting::theDelayNeedsTheTimer()
{
    Setting setting;
    auto *delay = part<QComboBox>(setting, "cmbAutoShooting");
    QVERIFY(delay->isEnabled());
    part<QCheckBox>(setting, "chbAutoShooting")->click();
    QVERIFY(!delay->isEnabled());
    writeFile("AutoShoot=2\n");
    part<QCheckBox>(setting, "chbAutoShooting")->click();
    setting.readFile();
    QVERIFY(!delay->isEnabled());
    setting.setCmbResoEnable(false);
    QVERIFY(!part<QComboBox>(setting, "cmbResolution")->isEnabled());
}

void TestSetting::hasItsSizeAndNames()
{
    QWidget window;
    window.setGeometry(200, 100, 800, 600);
    window.show();
    Setting setting(&window);
    QVERIFY(setting.isHidden());
    setting.show();
    QVERIFY(QTest::qWaitForWindowActive(&setting));
    QCOMPARE(setting.size(), QSize(413, 376));
    QCOMPARE(setting.minimumSize(), setting.maximumSize());
    QVERIFY(window.frameGeometry().contains(setting.frameGeometry()));
    QCOMPARE(part<QComboBox>(setting, "cmbAutoShooting")->accessibleName(), QString("Self Timer"));
    QTest::keyClick(&setting, Qt::Key_Escape);
    QVERIFY(!setting.isVisible());
}

QTEST_MAIN(TestSetting)
#include "tst_setting.moc"
