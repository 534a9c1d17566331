#include "tests/dialog/mainwindow.h"
class T : public QObject
{
    Q_OBJECT
};
QTEST_MAIN(T)
#include "tst_closing.moc"
