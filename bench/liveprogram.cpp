// The live view alone, for the benchmarks: `liveprogram show WIDTHxHEIGHT` shows it in a window of that size
// and tells twice a second how many frames were painted; `hide` does the same without the window, and `film`
// records a movie of what is shown. `liveprogram record PATH` records one with the window hidden, until
// SIGINT; `lesson` does the same with the picture shown as large as it is on a full HD screen, and takes a
// photo every second.

#include "capture/livevideowidget.h"
#include "platform/livevideodata.h"

#include <QApplication>
#include <QFrame>
#include <QTimer>

#include <csignal>
#include <cstdio>

namespace
{

volatile std::sig_atomic_t isInterrupted = 0;

class PaintCounter : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        painted += event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }
    int painted = 0;
};

// The frame that the picture is painted on; a label is a frame, too.
QFrame *pictureFrame(const LiveVideoWidget &view)
{
    for (QFrame *frame : view.findChildren<QFrame *>()) {
        if (qstrcmp(frame->metaObject()->className(), "QFrame") == 0)
            return frame;
    }
    qFatal("the live view has no picture");
}

int show(const QString &how, const QString &size)
{
    LiveVideoWidget view;
    view.setWindowFlags(Qt::FramelessWindowHint);
    view.setFixedSize(size.section('x', 0, 0).toInt(), size.section('x', 1, 1).toInt());
    view.Create();
    view.Start();
    view.move(0, 0);
    view.setVisible(how != "hide");

    PaintCounter counter;
    pictureFrame(view)->installEventFilter(&counter);
    QTimer report;
    bool isToBeFilmed = how == "film";
    QObject::connect(&report, &QTimer::timeout, [&] {
        if (isToBeFilmed && counter.painted > 0)
            isToBeFilmed = !view.Record();
        std::printf("rendered: %d\n", counter.painted);
        std::fflush(stdout);
    });
    constexpr int reportEveryMilliseconds = 500;
    report.start(reportEveryMilliseconds);
    return QApplication::exec();
}

int record(const QString &how, const QString &path)
{
    LiveVideoData capture;
    QFrame window;
    window.setWindowFlags(Qt::FramelessWindowHint);
    window.setFixedSize(1749, 984);
    window.setVisible(how == "lesson");
    capture.SetTarget(&window);
    capture.Create();
    capture.Start();
    bool isRecording = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (!isRecording && capture.IsValidVideoDevice() && capture.IsValidAudioDevice()) {
            capture.Record(path);
            isRecording = true;
        }
        if (isInterrupted) {
            capture.RecordStop();
            QApplication::quit();
        }
    });
    constexpr int lookEveryMilliseconds = 50;
    look.start(lookEveryMilliseconds);
    QTimer photos;
    int photo = 0;
    QObject::connect(&photos, &QTimer::timeout,
                     [&] { capture.SaveBitmap(QString("%1.%2.png").arg(path).arg(++photo)); });
    if (how == "lesson")
        photos.start(1000);
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const QString how = arguments.value(1);
    if (how != "record" && how != "lesson")
        return show(how, arguments.value(2));
    std::signal(SIGINT, [](int) { isInterrupted = 1; });
    return record(how, arguments.value(2));
}
