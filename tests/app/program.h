#pragma once

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QProcess>
#include <QScreen>
#include <QTest>

#include <unistd.h>

// The real program, used as a teacher uses it: by mouse and keyboard, looked at on the screen.
class Program
{
public:
    ~Program()
    {
        m_process.kill();
        m_process.waitForFinished();
        if (QTest::currentTestFailed())
            qInfo("%s", m_process.readAllStandardError().constData());
    }

    // Starts it and waits for its live picture, or only for its window.
    bool start(bool withPicture = true)
    {
        m_process.start(ORVANE_PROGRAM, QStringList());
        return m_process.waitForStarted() && QTest::qWaitFor([] { return windows() > 0; }, 20000) &&
               (!withPicture || QTest::qWaitFor([] { return brightness(QPoint(400, 300)) > 30; }, 20000));
    }
    // With what it saves: on a busy disk each file may take seconds.
    bool waitForEnd()
    {
        return QTest::qWaitFor([this] { return m_process.state() == QProcess::NotRunning; }, 60000);
    }
    // As the system ends it.
    bool quit()
    {
        m_process.terminate();
        return waitForEnd();
    }
    QProcess &process() { return m_process; }

    // Whether it is in the middle of writing a file into the folder.
    bool isWritingInto(const QDir &folder) const
    {
        const QString own = QString("/proc/%1/").arg(m_process.processId());
        for (const QString &name : QDir(own + "fdinfo").entryList(QDir::Files)) {
            QFile position(own + "fdinfo/" + name);
            if (QFile::symLinkTarget(own + "fd/" + name).startsWith(folder.path() + '/') &&
                position.open(QIODevice::ReadOnly) && position.readLine() != "pos:\t0\n")
                return true;
        }
        return false;
    }

    QStringList threads() const
    {
        QStringList names;
        const QDir tasks(QString("/proc/%1/task").arg(m_process.processId()));
        for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            QFile name(tasks.filePath(task + "/comm"));
            if (name.open(QIODevice::ReadOnly))
                names += QString(name.readAll()).trimmed();
        }
        return names;
    }

    // The program's windows that can be seen, its dialogs among them; by the beginning of their title.
    static int windows(const QString &title = "Orvane")
    {
        return xdotool({"search", "--onlyvisible", "--name", '^' + title}).count('\n');
    }
    static QByteArray xdotool(const QStringList &arguments)
    {
        QProcess tool;
        tool.start("xdotool", arguments);
        return tool.waitForFinished() ? tool.readAllStandardOutput() : QByteArray();
    }
    static void click(const QPoint &point)
    {
        const QPoint pixel = point * qApp->devicePixelRatio();
        xdotool({"mousemove", QString::number(pixel.x()), QString::number(pixel.y()), "click", "1"});
    }
    static void press(const QString &key) { xdotool({"key", key}); }

    enum Answer { Yes, No, Cancel };
    // Presses that of the question's three buttons, which stand side by side in its lower half.
    static void answer(Answer button)
    {
        // The second window from below.
        const QStringList question = {"search", "--onlyvisible", "--name", "^Orvane"};
        const QString size = xdotool(question + QStringList{"getwindowgeometry", "--shell", "%2"});
        const auto pixels = [&size](const QString &key) {
            return size.section(key, 1).section('\n', 0, 0).toInt();
        };
        const QString x = QString::number(pixels("WIDTH=") * (2 * button + 1) / 6);
        const QString y = QString::number(pixels("HEIGHT=") * 3 / 4);
        xdotool(question + QStringList{"mousemove", "--window", "%2", x, y, "click", "1"});
    }

    static QImage screen() { return QGuiApplication::primaryScreen()->grabWindow(0).toImage(); }
    // Of the surroundings of a point: pictures of a page have dark letters.
    static int brightness(const QPoint &point)
    {
        const QImage around =
            QGuiApplication::primaryScreen()->grabWindow(0, point.x() - 4, point.y() - 4, 9, 9).toImage();
        return qGray(around.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixel(0, 0));
    }

    // The buttons' places, counted from the left. All places are in the program's pixels, of which a scaled
    // screen has fewer.
    static int width() { return QGuiApplication::primaryScreen()->size().width(); }
    static int height() { return QGuiApplication::primaryScreen()->size().height(); }
    static int buttonWidth() { return qMin(240, width() / 6); }
    static int buttonHeight() { return 96 * buttonWidth() / 240; }
    static int left(int buttons) { return (width() - buttonWidth()) / 2 - buttonWidth() * buttons / 2; }
    static QPoint liveRow(int place) { return centre(left(5), place); }
    static QPoint row(int place) { return centre(left(3), place); }
    static QPoint exitButton() { return {width() - buttonWidth() / 2, height() - buttonHeight() / 4}; }
    static QPoint settingsButton() { return exitButton() - QPoint(0, buttonHeight() / 2); }
    static QPoint acceptButton()
    {
        return {(width() - buttonWidth()) / 2, height() - buttonHeight() * 3 / 2};
    }
    static QPoint retryButton() { return acceptButton() + QPoint(buttonWidth(), 0); }

    // How the button around that point looks: E enabled, d disabled, . not there. Plates are blue, or grey.
    static char look(const QImage &image, const QPoint &button)
    {
        // At its right end, within its frame, neither drawing nor caption is in the way.
        const QPoint end(buttonWidth() / 2 - buttonWidth() / 40, 0);
        const QColor plate = image.pixelColor((button + end) * image.devicePixelRatio());
        if (plate.value() < 20)
            return '.';
        return plate.hsvSaturation() > 60 ? 'E' : 'd';
    }
    // The live row's five places, or the other rows' four when nothing stands at the first of the five.
    static QString rowLooks(const QImage &image)
    {
        QString looks;
        const bool isLiveRow = look(image, liveRow(0)) != '.';
        for (int place = 0; place < (isLiveRow ? 5 : 4); ++place)
            looks += look(image, isLiveRow ? liveRow(place) : row(place));
        return looks;
    }
    // What the row holds: -5 for the live row's five buttons, else the number of buttons of another row.
    static int buttonsShown()
    {
        const QString looks = rowLooks(screen());
        return looks.size() == 5 ? -5 : looks.size() - looks.count('.');
    }
    static bool showsPreview() { return look(screen(), acceptButton()) == 'E'; }

    static QDir workingFolder()
    {
        return QDir(QDir::temp().filePath(QString("VeltrixCamera_%1").arg(geteuid())));
    }
    static QStringList captures(const QStringList &patterns = {"photo*", "movie*"})
    {
        return workingFolder().entryList(patterns, QDir::Files, QDir::Name);
    }

private:
    static QPoint centre(int left, int place)
    {
        return {left + buttonWidth() * place + buttonWidth() / 2, height() - buttonHeight() / 2};
    }

    QProcess m_process;
};
