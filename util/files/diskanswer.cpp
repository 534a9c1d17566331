#include "util/files/diskanswer.h"

#include <QCoreApplication>
#include <QThread>

bool isGuiThread()
{
    return qApp && QThread::currentThread() == qApp->thread();
}
