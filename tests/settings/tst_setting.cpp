#include "settings/setting.h"
#include "tests/support/modalanswer.h"

#include <QTest>
#include <QtWidgets>

class TestSetting : public QObject
{
    Q_OBJECT

    template<class Widget> static Widget *part(const Setting &setting, const char *name)
    {
        return setting.findChild<Widget *>(name);
    }
    // What a person sees: timer, delay, series, preview, resolution, where to save.
    static QString shown(const Setting &setting)
    {
        const bool isCustom = part<QRadioButton>(setting, "rbtnCustom")->isChecked();
        const QVariantList values = {
            int(setting.getAutoShooting()),  setting.getAutoShootingTime(),
            setting.getContinuousShooting(), int(setting.getPhotoPreview()),
            setting.getResolution(),         isCustom ? setting.getSaveDirectory() : "default"};
        return QVariant(values).toStringList().join(' ');
    }

    const QString m_path = QDir::homePath() + "/.hollin_orvane.ini";

private slots:
    void init()
    {
        QFile::remove(m_path);
        QDir(m_path).removeRecursively();
    }

    void showsTheFile()
    {
        const struct {
            QByteArray content;
            QString shown;
        } table[] = {
            {"[General]\n", "1 5 4 1 640x480 default"},
            {"[General]\nAutoShoot=0\nAutoShootTime=30\nContinuShootCount=9\nPhotoPreview=0\n"
             "Resolution=640x480\nSaveDirectory=/tmp\n",
             "0 30 9 0 640x480 /tmp"},
            // Within the limits, but no choice.
            {"AutoShootTime=7\nContinuShootCount=5\n", "1 1 2 1 640x480 default"},
            {"AutoShoot=2\nAutoShootTime=31\nContinuShootCount=12\nPhotoPreview=-1\nResolution=1x1\n",
             "1 5 4 1 640x480 default"},
            {"AutoShoot=yes\nAutoShootTime=x\nContinuShootCount=\nPhotoPreview=y\n",
             "0 5 4 0 640x480 default"},
            {QByteArray("\x00\xff]]==\nAutoShootTime=10\n[Gen", 28), "1 10 4 1 640x480 default"},
        };
        for (const auto &row : table) {
            QFile file(m_path);
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(row.content) > 0 && file.flush());
            Setting setting;
            QCOMPARE(shown(setting), row.shown);
            // Saving heals whatever the file was.
            part<QComboBox>(setting, "cmbAutoShooting")->setCurrentIndex(6);
            const QString before = shown(setting);
            setting.SaveFile();
            QCOMPARE(shown(Setting()), before);
        }
    }

    void anythingInPlaceOfTheFileGivesDefaults()
    {
        for (const char *make :
             {"true", "mkdir $0", "mkfifo $0", "ln -s $0 $0", "ln -s /dev/zero $0", "truncate -s 8G $0",
              // 2^30 points of a polygon
              R"(printf '[General]\nAutoShoot=@Variant(\\0\\0\\0\\x47\\x40\\0\\0\\0)\n' >$0)"}) {
            init();
            QCOMPARE(QProcess::execute("sh", {"-c", make, m_path}), 0);
            QElapsedTimer clock;
            clock.start();
            Setting setting;
            QCOMPARE(shown(setting), QString("1 5 4 1 640x480 default"));
            setting.SaveFile();
            QVERIFY2(clock.elapsed() < 1000, make);
        }
    }

    void writesOnlyWhenToldAndForgetsWhenCancelled()
    {
        Setting setting;
        setting.show();
        part<QComboBox>(setting, "cmbAutoShooting")->setCurrentIndex(0);
        QCOMPARE(setting.getAutoShootingTime(), 1);
        part<QPushButton>(setting, "btnCancel")->click();
        setting.show();
        QCOMPARE(setting.getAutoShootingTime(), 5);
        part<QCheckBox>(setting, "chbAutoShooting")->click();
        part<QPushButton>(setting, "btnOk")->click();
        QVERIFY(!QFile::exists(m_path));
        setting.SaveFile();
        QCOMPARE(shown(Setting()), QString("0 5 4 1 640x480 default"));
    }

    void resolutionsOfTheCamera()
    {
        Setting setting;
        auto *combo = part<QComboBox>(setting, "cmbResolution");
        setting.setResolutionList({});
        QCOMPARE(combo->count(), 1);
        // The count of the given list decides, doubles among it.
        setting.setResolutionList({"640x480", "640x480", "1280x720"});
        QCOMPARE(combo->count(), 2);
        QCOMPARE(setting.getResolution(), QString("1280x720"));
        setting.setResolutionList({"640x480", "640x480", "640x480", "1280x720", "640x480"});
        QCOMPARE(combo->currentIndex(), -1);
    }

    void saveLocation()
    {
        const QString link = QDir::homePath() + "/link";
        QVERIFY(QFile::link("/tmp", link));
        const QPair<QString, QString> table[] = {{"", "Please specify the save location."},
                                                 {"/", "Invalid PATH is specified."},
                                                 {link, "Invalid PATH is specified."},
                                                 {QDir::homePath(), QString()}};
        Setting setting;
        setting.show();
        part<QRadioButton>(setting, "rbtnCustom")->click();
        for (const auto &row : table) {
            part<QLineEdit>(setting, "txbSaveDirectory")->setText(row.first);
            const ModalAnswer answer;
            part<QPushButton>(setting, "btnOk")->click();
            QCOMPARE(answer.text(), row.second);
            QCOMPARE(setting.isVisible(), !row.second.isEmpty());
        }

        // Once the owner has decided about the button, the choice no longer does.
        auto *browse = part<QToolButton>(setting, "tolSaveDirectory");
        part<QRadioButton>(setting, "rbtnDefault")->click();
        QVERIFY(!browse->isEnabled());
        part<QRadioButton>(setting, "rbtnCustom")->click();
        QVERIFY(browse->isEnabled());
        setting.setBtnSaveEnable(true);
        part<QRadioButton>(setting, "rbtnDefault")->click();
        QVERIFY(browse->isEnabled());
    }
};

QTEST_MAIN(TestSetting)
#include "tst_setting.moc"
