#include "tests/plugins/controlfile.h"

#include <glib.h>
#include <mutex>
#include <sys/stat.h>

namespace
{

bool isListed(const std::string &key)
{
    return key == "name" || key == "provider" || key == "formats" || key.rfind("prop.", 0) == 0;
}

ControlFile load(const std::string &path)
{
    ControlFile devices;
    const std::unique_ptr<GKeyFile, decltype(&g_key_file_free)> file(g_key_file_new(), g_key_file_free);
    // Without the file there are no devices.
    g_key_file_load_from_file(file.get(), path.c_str(), G_KEY_FILE_NONE, nullptr);
    char **sections = g_key_file_get_groups(file.get(), nullptr);
    for (char **section = sections; *section; ++section) {
        auto &values = devices[*section].values;
        char **keys = g_key_file_get_keys(file.get(), *section, nullptr, nullptr);
        for (char **key = keys; *key; ++key) {
            char *value = g_key_file_get_string(file.get(), *section, *key, nullptr);
            values[*key] = value;
            g_free(value);
        }
        g_strfreev(keys);
    }
    g_strfreev(sections);
    return devices;
}

} // namespace

std::string DeviceSettings::value(const std::string &key, const std::string &fallback) const
{
    const auto found = values.find(key);
    return found == values.end() ? fallback : found->second;
}

bool DeviceSettings::isListedLike(const DeviceSettings &other) const
{
    const auto listedOf = [](const DeviceSettings &settings) {
        std::map<std::string, std::string> listed;
        for (const auto &[key, value] : settings.values) {
            if (isListed(key))
                listed[key] = value;
        }
        return listed;
    };
    return listedOf(*this) == listedOf(other);
}

std::shared_ptr<const ControlFile> readControlFile()
{
    // Never freed: threads may still look while the process ends.
    static auto *const mutex = new std::mutex;
    static auto *const current = new auto(std::make_shared<const ControlFile>());
    static struct stat read = {};
    const std::lock_guard lock(*mutex);
    const std::string path = std::string(g_get_user_runtime_dir()) + "/orvane-test-devices.ini";
    struct stat now = {};
    stat(path.c_str(), &now);
    if (now.st_ino != read.st_ino || now.st_mtim.tv_nsec != read.st_mtim.tv_nsec) {
        *current = std::make_shared<const ControlFile>(load(path));
        read = now;
    }
    return *current;
}
