#include "app/qtsingleapplication.h"
#include "app/terminationsignals.h"

#include <cstdio>

// Starts like the program does, and tells on its output what became of it: "second" and an end with 0, or
// "first" and then every message, until a signal ends it. The argument is the time-out in milliseconds.
int main(int argc, char **argv)
{
    setvbuf(stdout, nullptr, _IONBF, 0);
    QtSingleApplication application("OrvaneTest", argc, argv);
    const int timeoutMs = application.arguments().at(1).toInt();
    QObject::connect(&application, &QtSingleApplication::messageReceived,
                     [](const QString &message) { printf("message %s\n", qPrintable(message)); });
    if (application.sendMessage("Wake up!", timeoutMs)) {
        printf("second\n");
        return 0;
    }
    TerminationSignals fromOutside;
    QObject::connect(&fromOutside, &TerminationSignals::requested, [] { QCoreApplication::exit(7); });
    printf(application.isRunning() ? "alone\n" : "first\n");
    return QApplication::exec();
}
