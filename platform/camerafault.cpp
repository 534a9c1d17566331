#include "platform/camerafault.h"

#include "platform/capturelog.h"

#include <cerrno>

namespace
{

struct SystemError {
    const char *english;
    int number;
    CameraFault fault;
};

const SystemError systemErrors[] = {
    {"Device or resource busy", EBUSY, CameraFault::Busy},
    {"Permission denied", EACCES, CameraFault::NoPermission},
    {"Operation not permitted", EPERM, CameraFault::NoPermission},
    // A camera has no space; so the kernel says that the bus has no room for its pictures.
    {"No space left on device", ENOSPC, CameraFault::NoBandwidth},
    {"No such device", ENODEV, CameraFault::Unplugged},
    {"No such device or address", ENXIO, CameraFault::Unplugged},
    {"No such file or directory", ENOENT, CameraFault::Unplugged},
};

// The system's errors are told in words of the user's language.
bool mentions(const QByteArray &text, const SystemError &error)
{
    return text.contains(error.english) || text.contains(g_strerror(error.number));
}

CameraFault faultOfCode(const GError *error, const QByteArray &text)
{
    if (g_error_matches(error, GST_RESOURCE_ERROR, GST_RESOURCE_ERROR_BUSY))
        return CameraFault::Busy;
    if (g_error_matches(error, GST_RESOURCE_ERROR, GST_RESOURCE_ERROR_NOT_AUTHORIZED))
        return CameraFault::NoPermission;
    if (g_error_matches(error, GST_RESOURCE_ERROR, GST_RESOURCE_ERROR_NOT_FOUND))
        return CameraFault::Unplugged;
    // All that is told when the kernel refuses to start the stream, which a lack of bandwidth makes it do.
    return text.contains("Buffer pool activation failed") ? CameraFault::NoBandwidth : CameraFault::Failed;
}

} // namespace

CameraFault cameraFault(const GError *error, const char *debug)
{
    const QByteArray text = QByteArray(error->message) + '\n' + debug;
    for (const SystemError &known : systemErrors) {
        if (mentions(text, known))
            return known.fault;
    }
    return faultOfCode(error, text);
}

CameraFailure cameraFailure(GstMessage *message)
{
    const ParsedError parsed(message);
    return {cameraFault(parsed.error.get(), parsed.debug.get()),
            errorText(parsed.error.get(), parsed.debug.get())};
}

QString faultName(CameraFault fault)
{
    // In their order.
    constexpr const char *names[] = {"no fault",         "unplugged", "busy",          "no permission",
                                     "no USB bandwidth", "silent",    "not answering", "failed"};
    return QLatin1String(names[int(fault)]);
}
