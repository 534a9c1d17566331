#include "platform/capturelog.h"

Q_LOGGING_CATEGORY(cameraLog, "orvane.camera")
Q_LOGGING_CATEGORY(movieLog, "orvane.movie")
Q_LOGGING_CATEGORY(soundLog, "orvane.sound")
Q_LOGGING_CATEGORY(deviceLog, "orvane.devices")

QString errorText(const GError *error, const char *debug)
{
    QString text = QString::fromUtf8(error->message).simplified();
    if (text.isEmpty())
        text = QStringLiteral("An error without words.");
    const QString details = QString::fromUtf8(debug).simplified();
    return details.isEmpty() ? text : text + QStringLiteral(" (debug: ") + details + QLatin1Char(')');
}

QString errorText(GstMessage *message)
{
    const ParsedError parsed(message);
    return errorText(parsed.error.get(), parsed.debug.get());
}
