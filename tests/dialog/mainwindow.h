#pragma once

#include "dialog/pictoreldlg.h"
#include "platform/livevideodata.h"
#include "settings/setting.h"
#include "tests/support/testdevices.h"
#include "util/webcamutil.h"
#include "widgets/picturewidget.h"
#include "widgets/stretchbitmapbutton.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <linux/capability.h>
#include <memory>
#include <sys/syscall.h>
#include <unistd.h>

// Root, too, shall meet files and folders that may not be read. This counts for this thread, and for all that
// it starts from now on.
inline void obeyPermissions()
{
    __user_cap_header_struct version = {_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct rights[_LINUX_CAPABILITY_U32S_3] = {};
    QCOMPARE(syscall(SYS_capget, &version, rights), 0L);
    rights[0].permitted &= ~(1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH);
    rights[0].effective = rights[0].permitted;
    QCOMPARE(syscall(SYS_capset, &version, rights), 0L);
}

inline QByteArray png(const QImage &image)
{
    QByteArray contents;
    QBuffer buffer(&contents);
    image.save(&buffer, "PNG");
    return contents;
}

inline QByteArray whitePhoto()
{
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(Qt::white);
    return png(image);
}

// A capture's path in the working folder.
inline QString working(const QString &name = QString())
{
    return WebcamUtil::getTemporaryPath() + "/" + name;
}

// The program's main window on a test camera and microphone, used as a user uses it: by its buttons.
class MainWindow
{
public:
    // settings: lines of the settings file.
    explicit MainWindow(const QString &settings = QString(), const QString &formats = "YUY2 640x480 30",
                        const QString &camera = "Board Cam", const QString &content = "page")
    {
        QDir(WebcamUtil::getTemporaryPath()).removeRecursively();
        WebcamUtil::setTemporaryPath();
        writeFile(QDir::homePath() + "/.hollin_orvane.ini", "[General]\n" + settings.toUtf8());
        LiveVideoData probe;
        // An earlier window's are gone by then, and not taken away under this one.
        if (!QTest::qWaitFor([&] { return probe.GetVideoDeviceList().isEmpty(); }, 3000))
            qFatal("the test devices do not go");
        devices.camera("cam").name(camera).formats(formats).content(content);
        devices.microphone("mic").sound("silence");
        devices.write();
        if (!QTest::qWaitFor([&] { return probe.GetVideoDeviceList() == QStringList(camera); }, 3000) ||
            !QTest::qWaitFor([&] { return probe.IsValidAudioDevice(); }, 3000))
            qFatal("the test devices are not listed");
        window = std::make_unique<CPictorelDlg>();
        window->show();
        static_cast<void>(QTest::qWaitForWindowActive(window.get()));
    }

    static void writeFile(const QString &path, const QByteArray &contents)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
            qFatal("%s cannot be written", qUtf8Printable(path));
    }

    CStretchBitmapButton *button(const QString &name) const
    {
        return window->findChild<CStretchBitmapButton *>(name);
    }

    void press(const QString &name) const { QTest::mouseClick(button(name), Qt::LeftButton); }

    // The only child of a class.
    template<class Widget> Widget *view() const
    {
        return window->findChild<Widget *>(QString(), Qt::FindDirectChildrenOnly);
    }

    // The photos of the grid that are shown. The first such child is the picture view.
    QList<PictureWidget *> tiles() const
    {
        QList<PictureWidget *> shown;
        for (auto *tile :
             window->findChildren<PictureWidget *>(QString(), Qt::FindDirectChildrenOnly).mid(1)) {
            if (!tile->isHidden())
                shown << tile;
        }
        return shown;
    }

    // The buttons that are shown, from left to right, those that can be pressed with a "+".
    QString buttons() const
    {
        QMap<std::pair<int, int>, QString> names;
        for (auto *one :
             window->findChildren<CStretchBitmapButton *>(QString(), Qt::FindDirectChildrenOnly)) {
            if (one->isVisible())
                names[{one->x(), one->y()}] = one->objectName() + (one->isEnabled() ? "+" : "");
        }
        return QStringList(names.values()).join(' ');
    }

    static QStringList captures(const QString &filter = "*")
    {
        return QDir(WebcamUtil::getTemporaryPath())
            .entryList({filter}, QDir::Files | QDir::Hidden, QDir::Name);
    }

    TestDevices devices;
    std::unique_ptr<CPictorelDlg> window;
};

// Answers the modal dialogs, but for the settings, that come up while it lives, each by a press on the button
// with the next of the texts, and keeps what they said.
class Answers
{
public:
    explicit Answers(const QStringList &presses) : m_presses(presses)
    {
        constexpr int lookEveryMilliseconds = 20;
        QObject::connect(&m_look, &QTimer::timeout, [this] { answer(); });
        m_look.start(lookEveryMilliseconds);
    }

    QStringList told() const { return m_told; }

private:
    void answer()
    {
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog || !dialog->isVisible() || m_presses.isEmpty() || qobject_cast<Setting *>(dialog))
            return;
        for (auto *button : dialog->findChildren<QPushButton *>()) {
            if (button->text() != m_presses.first() || !button->isVisible())
                continue;
            const auto *box = qobject_cast<QMessageBox *>(dialog);
            const auto *label = dialog->findChild<QLabel *>();
            m_told << (box ? box->text() : label ? label->text() : QString());
            m_presses.removeFirst();
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }

    QStringList m_presses;
    QStringList m_told;
    QTimer m_look;
};
