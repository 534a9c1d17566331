#include "tests/plugins/controlfile.h"

#include <cstdlib>
#include <glib.h>

namespace
{

using KeyFile = std::unique_ptr<GKeyFile, decltype(&g_key_file_free)>;
using Text = std::unique_ptr<char, decltype(&g_free)>;
using TextList = std::unique_ptr<char *, decltype(&g_strfreev)>;

const std::string propertyPrefix = "prop.";

std::string value(GKeyFile *file, const char *group, const char *key, const std::string &otherwise)
{
    const Text text(g_key_file_get_string(file, group, key, nullptr), g_free);
    return text ? text.get() : otherwise;
}

template<typename Enum>
Enum chosen(GKeyFile *file, const char *group, const char *key, const std::map<std::string, Enum> &words,
            Enum otherwise)
{
    const std::string word = value(file, group, key, "");
    if (word.empty())
        return otherwise;
    const auto found = words.find(word);
    if (found != words.end())
        return found->second;
    g_warning("[%s] %s: \"%s\" is not known", group, key, word.c_str());
    return otherwise;
}

DamagedFrames damagedFrames(const std::string &text)
{
    const std::string firstPrefix = "first-";
    DamagedFrames damaged;
    if (text.compare(0, firstPrefix.size(), firstPrefix) == 0)
        damaged.first = std::strtoul(text.c_str() + firstPrefix.size(), nullptr, 10);
    else
        damaged.every = std::strtoul(text.c_str(), nullptr, 10);
    return damaged;
}

void readProperties(GKeyFile *file, const char *group, DeviceSettings *device)
{
    device->hasProperties = value(file, group, "properties", "") != "none";
    const TextList keys(g_key_file_get_keys(file, group, nullptr, nullptr), g_strfreev);
    for (char **key = keys.get(); key && *key; ++key) {
        const std::string name = *key;
        if (name.compare(0, propertyPrefix.size(), propertyPrefix) == 0)
            device->properties[name.substr(propertyPrefix.size())] = value(file, group, *key, "");
    }
    if (value(file, group, "monitor", "") == "true")
        device->properties["device.class"] = "monitor";
}

std::shared_ptr<DeviceSettings> readDevice(GKeyFile *file, const char *group, DeviceKind kind,
                                           const std::string &id)
{
    static const std::map<std::string, Fault> faults = {
        {"none", Fault::None},          {"stall", Fault::Stall},
        {"hang-open", Fault::HangOpen}, {"hang-close", Fault::HangClose},
        {"busy", Fault::Busy},          {"read-error", Fault::ReadError}};
    static const std::map<std::string, UnplugOrder> orders = {{"error-first", UnplugOrder::ErrorFirst},
                                                              {"removed-first", UnplugOrder::RemovedFirst},
                                                              {"removed-only", UnplugOrder::RemovedOnly},
                                                              {"error-only", UnplugOrder::ErrorOnly}};
    auto device = std::make_shared<DeviceSettings>();
    device->kind = kind;
    device->id = id;
    device->name = value(file, group, "name", id);
    device->provider = value(file, group, "provider", "a");
    device->formats = value(file, group, "formats", "YUY2 640x480 30");
    device->content = value(file, group, "content", "page");
    device->sound = value(file, group, "sound", "silence");
    device->colour = std::strtoul(value(file, group, "colour", "808080").c_str(), nullptr, 16);
    device->fault = chosen(file, group, "fault", faults, Fault::None);
    device->order = chosen(file, group, "order", orders, UnplugOrder::ErrorFirst);
    device->damaged = damagedFrames(value(file, group, "damaged", ""));
    readProperties(file, group, device.get());
    return device;
}

} // namespace

bool listedAlike(const DeviceSettings &one, const DeviceSettings &other)
{
    return one.kind == other.kind && one.id == other.id && one.name == other.name &&
           one.provider == other.provider && one.formats == other.formats &&
           one.hasProperties == other.hasProperties && one.properties == other.properties;
}

std::string ControlFile::path()
{
    return std::string(g_get_user_runtime_dir()) + "/orvane-test-devices.ini";
}

std::shared_ptr<const ControlFile> ControlFile::read()
{
    static const std::map<std::string, DeviceKind> kinds = {{"camera ", DeviceKind::Camera},
                                                            {"microphone ", DeviceKind::Microphone}};
    auto control = std::make_shared<ControlFile>();
    const KeyFile file(g_key_file_new(), g_key_file_free);
    if (!g_key_file_load_from_file(file.get(), path().c_str(), G_KEY_FILE_NONE, nullptr))
        return control;
    const TextList groups(g_key_file_get_groups(file.get(), nullptr), g_strfreev);
    for (char **group = groups.get(); *group; ++group) {
        for (const auto &[prefix, kind] : kinds) {
            const std::string name = *group;
            if (name.compare(0, prefix.size(), prefix) == 0)
                control->m_devices.push_back(
                    readDevice(file.get(), *group, kind, name.substr(prefix.size())));
        }
    }
    return control;
}

std::shared_ptr<const DeviceSettings> ControlFile::find(DeviceKind kind, const std::string &id) const
{
    for (const auto &device : m_devices) {
        if (device->kind == kind && device->id == id)
            return device;
    }
    return nullptr;
}
