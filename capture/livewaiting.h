#pragma once

#include "capture/livecapture.h"
#include "capture/livevideowidget.h"

#include <QTimer>

#include <chrono>

// Stands for as long as an operation waits.
class LiveVideoWidget::Waiting
{
public:
    explicit Waiting(LiveVideoWidget *view) : m_view(view)
    {
        ++m_view->m_busy;
        QObject::connect(&m_patience, &QTimer::timeout, [view] { setHeldUp(view, true); });
        m_patience.setSingleShot(true);
        m_patience.start(noteworthy);
    }
    ~Waiting()
    {
        --m_view->m_busy;
        if (m_view->isBusy())
            return;
        setHeldUp(m_view, false);
        // Whoever called goes on first, and may wait for the next thing then.
        QMetaObject::invokeMethod(m_view, &LiveVideoWidget::tellHeldLoss, Qt::QueuedConnection);
    }
    Waiting(const Waiting &) = delete;
    Waiting &operator=(const Waiting &) = delete;

private:
    // A little less than what is pressed is kept for afterwards.
    static constexpr std::chrono::milliseconds noteworthy{900};

    static void setHeldUp(LiveVideoWidget *view, bool isHeldUp)
    {
        if (view->facts().now().isHeldUp != isHeldUp)
            view->m_capture->facts.change([isHeldUp](Facts &now) { now.isHeldUp = isHeldUp; });
    }

    LiveVideoWidget *m_view;
    QTimer m_patience;
};
