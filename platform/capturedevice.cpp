#include "platform/capturedevice.h"

#include <QCollator>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <numeric>

namespace
{

QString property(const GstStructure *properties, const char *name)
{
    const GValue *value = properties ? gst_structure_get_value(properties, name) : nullptr;
    if (!value)
        return {};
    if (G_VALUE_HOLDS_STRING(value))
        return QString::fromUtf8(g_value_get_string(value));
    const TextHandle text(gst_value_serialize(value));
    return QString::fromUtf8(text.get());
}

QString firstProperty(const GstStructure *properties, std::initializer_list<const char *> names)
{
    for (const char *name : names) {
        QString value = property(properties, name);
        if (!value.isEmpty())
            return value;
    }
    return {};
}

// PipeWire names the kernel's node as "v4l2:/dev/video0", and others by what is no node.
QString kernelsNode(const QString &path)
{
    const int start = path.indexOf(QLatin1String("/dev/"));
    return start < 0 ? QString() : path.mid(start);
}

// Some providers write a hexadecimal number with its mark, some without.
QString withoutMark(const QString &number)
{
    return number.startsWith(QLatin1String("0x")) ? number.mid(2) : number;
}

// The sound card "hw:0,1" of the kernel's sound, which has a node for each direction.
QString soundCardNode(GstDevice *device)
{
    if (!g_object_class_find_property(G_OBJECT_GET_CLASS(device), "internal-name"))
        return {};
    gchar *name = nullptr;
    g_object_get(device, "internal-name", &name, nullptr);
    const TextHandle owned(name);
    static const QRegularExpression card(QStringLiteral("^hw:(\\d+),(\\d+)$"));
    const QRegularExpressionMatch match = card.match(QString::fromUtf8(name));
    const QChar direction = gst_device_has_classes(device, "Source") ? 'c' : 'p';
    return match.hasMatch()
               ? QStringLiteral("/dev/snd/pcmC%1D%2").arg(match.captured(1), match.captured(2)) + direction
               : QString();
}

// The kernel's way to a USB camera ends with its port, as "...-usb-0:6:1.0" or "...-usbv2-0:6:1.0".
QString usbPortOf(const QString &busPath)
{
    static const QRegularExpression usb(QStringLiteral("-usb[^-]*-\\d+:([\\d.]+:\\d+\\.\\d+)$"));
    return usb.match(busPath).captured(1);
}

// libcamera names a USB camera by the way to its port, the port and the make: "...-6:1.0-046d:0825".
void describeLibcamera(const QString &id, CaptureDevice *described)
{
    static const QRegularExpression usb(
        QStringLiteral("-([\\d.]+:\\d+\\.\\d+)-([0-9a-f]{4}):([0-9a-f]{4})$"));
    const QRegularExpressionMatch match = usb.match(id);
    if (!match.hasMatch())
        return;
    described->usbPort = match.captured(1);
    described->vendor = match.captured(2);
    described->product = match.captured(3);
}

bool isTrue(const GstStructure *properties, const char *name)
{
    const QString value = property(properties, name);
    return value == QLatin1String("true") || value == QLatin1String("TRUE") || value == QLatin1String("1");
}

bool namesInfrared(const QString &name)
{
    return name.endsWith(QLatin1String(" IR")) || name.contains(QLatin1String(" IR "));
}

// A sound server mixes, resamples and survives an unplugged device, which the bare card does not.
int microphonePreference(const CaptureDevice &device)
{
    if (device.provider == QLatin1String("pulsedeviceprovider"))
        return 0;
    if (device.provider == QLatin1String("pipewiredeviceprovider"))
        return 1;
    return device.provider == QLatin1String("alsadeviceprovider") ? 3 : 2;
}

bool preferredMicrophone(const CaptureDevice &a, const CaptureDevice &b)
{
    if (a.isDefault != b.isDefault)
        return a.isDefault;
    return microphonePreference(a) < microphonePreference(b);
}

} // namespace

CaptureDevice describeDevice(GstDevice *device, const QString &provider)
{
    CaptureDevice described;
    described.device.reset(static_cast<GstDevice *>(gst_object_ref(device)), Release<gst_object_unref>());
    described.provider = provider;
    const TextHandle name(gst_device_get_display_name(device));
    described.name = QString::fromUtf8(name.get());

    const StructureHandle owned(gst_device_get_properties(device));
    const GstStructure *properties = owned.get();
    const QString ownNode = property(properties, "device.path");
    described.isDirect = !ownNode.isEmpty();
    described.node = described.isDirect
                         ? ownNode
                         : kernelsNode(firstProperty(properties, {"api.v4l2.path", "object.path"}));
    if (provider == QLatin1String("alsadeviceprovider"))
        described.node = soundCardNode(device);
    described.vendor = withoutMark(firstProperty(properties, {"device.vendor.id", "device.vendor.name"}));
    described.product = withoutMark(firstProperty(properties, {"device.product.id", "device.product.name"}));
    described.serial = property(properties, "device.serial");
    described.busPath =
        firstProperty(properties, {"device.bus_path", "device.bus-path", "v4l2.device.bus_info"});
    described.usbPort = usbPortOf(described.busPath);
    describeLibcamera(property(properties, "api.libcamera.path"), &described);
    described.isDefault = isTrue(properties, "is-default");
    described.isMonitor = property(properties, "device.class") == QLatin1String("monitor") ||
                          described.name.startsWith(QLatin1String("Monitor of "));
    return described;
}

std::vector<CaptureMode> modesOf(const CaptureDevice &camera)
{
    const CapsHandle caps(gst_device_get_caps(camera.device.get()));
    return captureModes(caps.get());
}

bool isUsableCamera(const CaptureDevice &device)
{
    return !namesInfrared(device.name) && !modesOf(device).empty();
}

bool isSameMake(const CaptureDevice &a, const CaptureDevice &b)
{
    return a.name == b.name && a.vendor == b.vendor && a.product == b.product && a.serial == b.serial;
}

bool isSameDevice(const CaptureDevice &a, const CaptureDevice &b)
{
    if (a.device == b.device)
        return true;
    if (!a.node.isEmpty() && !b.node.isEmpty())
        return a.node == b.node;
    if (!a.usbPort.isEmpty() && !b.usbPort.isEmpty() && a.provider != b.provider)
        return a.usbPort == b.usbPort && a.vendor == b.vendor && a.product == b.product;
    if (!a.busPath.isEmpty() && !b.busPath.isEmpty())
        return a.busPath == b.busPath && a.vendor == b.vendor && a.product == b.product &&
               a.serial == b.serial;
    if (!a.serial.isEmpty() && !b.serial.isEmpty())
        return a.serial == b.serial && a.vendor == b.vendor && a.product == b.product;
    // One provider lists two cameras of the same name as two; with nothing else told, a second provider's
    // entry of that name is the same camera.
    return a.provider != b.provider && a.name == b.name;
}

const CaptureDevice *findAgain(const std::vector<CaptureDevice> &listed, const CaptureDevice &chosen)
{
    const CaptureDevice *inSameSocket = nullptr;
    const CaptureDevice *ofSameMake = nullptr;
    int countOfMake = 0;
    for (const CaptureDevice &device : listed) {
        if (device.device == chosen.device)
            return &device;
        if (!isSameMake(device, chosen))
            continue;
        ++countOfMake;
        ofSameMake = &device;
        const bool isSameNode = !device.node.isEmpty() && device.node == chosen.node;
        if (device.busPath == chosen.busPath && (!inSameSocket || isSameNode))
            inSameSocket = &device;
    }
    if (inSameSocket)
        return inSameSocket;
    return countOfMake == 1 ? ofSameMake : nullptr;
}

std::vector<CaptureDevice> mergeCameras(const std::vector<CaptureDevice> &listed)
{
    std::vector<CaptureDevice> merged;
    for (const CaptureDevice &device : listed) {
        if (!isUsableCamera(device))
            continue;
        const auto known = std::find_if(merged.begin(), merged.end(), [&](const CaptureDevice &other) {
            return isSameDevice(device, other);
        });
        if (known == merged.end())
            merged.push_back(device);
        else if (device.isDirect && !known->isDirect)
            *known = device;
    }
    return merged;
}

QStringList choiceNames(const std::vector<CaptureDevice> &cameras)
{
    QCollator tenAfterTwo(QLocale::c());
    tenAfterTwo.setNumericMode(true);
    std::vector<size_t> byPort(cameras.size());
    std::iota(byPort.begin(), byPort.end(), 0);
    std::stable_sort(byPort.begin(), byPort.end(), [&](size_t a, size_t b) {
        const int ports = tenAfterTwo.compare(cameras[a].busPath, cameras[b].busPath);
        return ports != 0 ? ports < 0 : tenAfterTwo.compare(cameras[a].node, cameras[b].node) < 0;
    });
    QHash<QString, int> counts;
    std::vector<QString> names(cameras.size());
    for (const size_t i : byPort) {
        const int number = ++counts[cameras[i].name];
        names[i] = number > 1 ? QStringLiteral("%1 %2").arg(cameras[i].name).arg(number) : cameras[i].name;
    }
    return {names.begin(), names.end()};
}

const CaptureDevice *defaultMicrophone(const std::vector<CaptureDevice> &listed)
{
    const CaptureDevice *best = nullptr;
    for (const CaptureDevice &device : listed) {
        if (!device.isMonitor && (!best || preferredMicrophone(device, *best)))
            best = &device;
    }
    return best;
}
