#pragma once

#include <QObject>

// Turns the system's requests to end (SIGTERM, SIGINT and SIGHUP: log-out, shutdown, a closed terminal) into
// a signal on the event loop, so that the program ends the way the user closes it. One object at a time; when
// it is gone, the requests end the process at once again.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

signals:
    void requested();

private:
    void drain();

    int m_readEnd = -1;
    int m_writeEnd = -1;
};
