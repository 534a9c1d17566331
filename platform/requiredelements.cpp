#include "platform/requiredelements.h"

#include "platform/gsthandles.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace
{

struct Requirement {
    const char *element;
    const char *package;
};

const Requirement requirements[] = {
    {"v4l2src", "gstreamer1.0-plugins-good"},
    {"capsfilter", "libgstreamer1.0-0"},
    {"queue", "libgstreamer1.0-0"},
    {"filesink", "libgstreamer1.0-0"},
    {"appsink", "gstreamer1.0-plugins-base"},
    {"appsrc", "gstreamer1.0-plugins-base"},
    {"audioconvert", "gstreamer1.0-plugins-base"},
    {"audioresample", "gstreamer1.0-plugins-base"},
    {"x264enc", "gstreamer1.0-plugins-ugly"},
    {"h264parse", "gstreamer1.0-plugins-bad"},
    {"avdec_h264", "gstreamer1.0-libav"},
    {"avenc_aac", "gstreamer1.0-libav"},
    {"qtmux", "gstreamer1.0-plugins-good"},
};

// Of the sound servers, the one that is asked first where both run; by its socket in the user's run folder.
const struct {
    const char *socket;
    Requirement plugIn;
} soundServers[] = {
    {"/pulse/native", {"pulsesrc", "gstreamer1.0-pulseaudio"}},
    {"/pipewire-0", {"pipewiresrc", "gstreamer1.0-pipewire"}},
};

void tellMissing(const Requirement &requirement, QStringList *lines)
{
    if (!gst_registry_check_feature_version(gst_registry_get(), requirement.element, 1, 0, 0))
        *lines << QStringLiteral("GStreamer element \"%1\" is not installed (package %2)")
                      .arg(QLatin1String(requirement.element), QLatin1String(requirement.package));
}

} // namespace

namespace RequiredElements
{

QStringList missing()
{
    QStringList lines;
    for (const Requirement &requirement : requirements)
        tellMissing(requirement, &lines);
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    for (const auto &server : soundServers) {
        if (!QFileInfo::exists(folder + QLatin1String(server.socket)))
            continue;
        tellMissing(server.plugIn, &lines);
        break;
    }
    return lines;
}

} // namespace RequiredElements
