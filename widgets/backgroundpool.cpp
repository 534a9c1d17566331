#include "widgets/backgroundpool.h"

#include <QCoreApplication>
#include <QThread>
#include <QThreadPool>

// What still runs uses memory that goes with the program.
static void waitAMoment()
{
    constexpr int milliseconds = 1000;
    backgroundPool()->clear();
    backgroundPool()->waitForDone(milliseconds);
}

QThreadPool *backgroundPool()
{
    // Never destroyed: that would wait without a limit.
    static QThreadPool *const pool = [] {
        auto *made = new QThreadPool;
        made->setMaxThreadCount(qMax(2, QThread::idealThreadCount()));
        qAddPostRoutine(waitAMoment);
        return made;
    }();
    return pool;
}
