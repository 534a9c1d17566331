#pragma once

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QtTest>

#include <unistd.h>

// The real program, used as a teacher uses it: by mouse and keyboard, looked at on the screen.
class Program
{
public:
    ~Program()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    // Starts it and waits for its live picture, or only for its window.
    bool start(bool withPicture = true)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(ORVANE_PROGRAM, QStringList());
        return m_process.waitForStarted() && QTest::qWaitFor([] { return windows() > 0; }, 10000) &&
               (!withPicture || QTest::qWaitFor([] { return brightness(QPoint(400, 300)) > 30; }, 10000));
    }
    bool waitForEnd(int milliseconds = 10000)
    {
        return QTest::qWaitFor([this] { return m_process.state() == QProcess::NotRunning; }, milliseconds);
    }
    QProcess &process() { return m_process; }

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
        xdotool({"mousemove", QString::number(point.x()), QString::number(point.y()), "click", "1"});
    }
    static void press(const QString &key) { xdotool({"key", key}); }
    static void type(const QString &text) { xdotool({"type", text}); }

    static QImage screen() { return QGuiApplication::primaryScreen()->grabWindow(0).toImage(); }
    static int brightness(const QPoint &point) { return qGray(screen().pixel(point)); }

    // The buttons' places on a screen of 1024x768, counted from the left.
    static QPoint liveRow(int place) { return {85 + 2 + 170 * place, 734}; }
    static QPoint row(int place) { return {172 + 85 + 170 * place, 734}; }
    static QPoint exitButton() { return {939, 751}; }
    static QPoint settingsButton() { return {939, 717}; }
    static QPoint acceptButton() { return {512 - 85, 666}; }
    static QPoint retryButton() { return {512 + 85, 666}; }

    // What the row holds: -5 for the live row's five buttons, else the number of buttons from the other rows'
    // left.
    static int buttonsShown()
    {
        const QImage image = screen();
        const auto isLit = [&image](int x) { return qGray(image.pixel(x, 734)) > 10; };
        if (isLit(10))
            return -5;
        int count = 0;
        while (count < 4 && isLit(172 + 8 + 170 * count))
            ++count;
        return count;
    }
    static bool showsPreview() { return brightness(acceptButton() - QPoint(78, 0)) > 10; }

    static QDir workingFolder()
    {
        return QDir(QDir::temp().filePath(QString("VeltrixCamera_%1").arg(geteuid())));
    }
    static QStringList captures(const QStringList &patterns = {"photo*", "movie*"})
    {
        return workingFolder().entryList(patterns, QDir::Files, QDir::Name);
    }

private:
    QProcess m_process;
};
