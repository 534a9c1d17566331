#pragma once

#include <QMessageBox>
#include <QObject>
#include <QString>
#include <QWidget>

#include <memory>
#include <string>

// The period with which every window of the program pulls itself back to the top.
constexpr int raisePeriodMs = 500;

// What a CWMUpdateTimer calls on every tick.
class CWMUpdateCallback
{
public:
    virtual ~CWMUpdateCallback() = default;
    virtual void update_window() = 0;
};

// A periodic timer on the GUI thread's event loop.
class CWMUpdateTimer : public QObject
{
public:
    // Starts at once with a period of ms milliseconds. The callback is not owned and must outlive the timer.
    CWMUpdateTimer(int ms, CWMUpdateCallback *callback);

    // Starts anew when it is running already: there is never more than one timer behind this object.
    void start(int ms);
    void stop();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    int m_timerId = 0; // 0 while stopped
    CWMUpdateCallback *m_callback;
};

// Mix-in for a top-level widget that shares the screen with full-screen whiteboard software: while another
// window is active it raises the widget above everything else, whatever the window manager thinks of that.
// Inherit it after QWidget, so that its timer is gone before the widget is.
class CWindowManagement : public CWMUpdateCallback
{
public:
    // Raises widget (not owned; null: nothing ever runs) every ms milliseconds, from now on. raiseParents:
    // its parent widgets are raised first, the outermost before all. processName: no raising while a process
    // with this name runs; empty: no such check.
    CWindowManagement(QWidget *widget, int ms, bool raiseParents, const QString &processName);
    ~CWindowManagement() override;
    CWindowManagement(const CWindowManagement &) = delete;
    CWindowManagement &operator=(const CWindowManagement &) = delete;

    void start_window(int ms);
    void stop_window();

    // One tick.
    void update_window() override;

    // Whether a process whose command line holds name is running; false when that cannot be found out. The
    // name goes to the shell as it is. Blocks until the shell command has ended.
    static bool isRunning(std::string &name);

private:
    static void raiseWindowTop(WId window);
    static void raiseQtWindowTop(WId window);
    static void raiseParentWidgetTop(QWidget *widget);
    bool mayRaise() const;

    QWidget *m_widget;
    std::unique_ptr<CWMUpdateTimer> m_timer;
    QString m_processName;
    bool m_raiseParents;
};

// A message box that keeps itself above every other window.
class CWindowManagementMessageBox : public QMessageBox, public CWindowManagement
{
    Q_OBJECT

public:
    // The box as QMessageBox makes it, raised every ms milliseconds; its parents are left where they are.
    CWindowManagementMessageBox(QMessageBox::Icon icon, const QString &title, const QString &text,
                                QMessageBox::StandardButtons buttons, QWidget *parent, Qt::WindowFlags flags,
                                int ms);
};
