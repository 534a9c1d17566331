#pragma once

#include <QProcess>
#include <QTest>

// What the clipboard holds of a type, as another program finds it.
inline QByteArray onClipboard(const QString &type)
{
    QProcess reader;
    reader.start("xclip", {"-selection", "clipboard", "-o", "-t", type});
    static_cast<void>(QTest::qWaitFor([&] { return reader.state() == QProcess::NotRunning; }));
    return reader.readAllStandardOutput();
}
