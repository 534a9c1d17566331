#include "platform/devicewatch.h"

#include "platform/capturelog.h"
#include "platform/providerwatch.h"
#include "util/files/alivewait.h"

#include <algorithm>
#include <utility>

namespace
{

// A provider without its server answers in milliseconds; one that takes longer than this hangs.
constexpr auto firstListingLimit = std::chrono::milliseconds(1500);

constexpr char soundCardFolder[] = "/dev/snd";

constexpr char cameraClass[] = "Video/Source";
constexpr char microphoneClass[] = "Audio/Source";

// The kernel's cameras first: where a server lists the same camera too, the order of the list must not
// depend on which of the two was quicker.
bool comesFirst(GstPluginFeature *a, GstPluginFeature *b)
{
    const auto isKernels = [](GstPluginFeature *feature) {
        return g_strcmp0(gst_plugin_feature_get_name(feature), "v4l2deviceprovider") == 0;
    };
    return isKernels(a) && !isKernels(b);
}

// A provider that is ranked NONE is switched off, as everywhere in GStreamer.
GList *providerFactories()
{
    return gst_device_provider_factory_list_get_device_providers(GST_RANK_MARGINAL);
}

} // namespace

bool DeviceWatch::startGStreamer()
{
    return gst_init_check(nullptr, nullptr, nullptr);
}

void DeviceWatch::loadProviders()
{
    if (!startGStreamer())
        return;
    GList *factories = providerFactories();
    for (GList *link = factories; link; link = link->next) {
        if (GstPluginFeature *loaded = gst_plugin_feature_load(GST_PLUGIN_FEATURE(link->data)))
            gst_object_unref(loaded);
    }
    gst_plugin_feature_list_free(factories);
}

DeviceWatch &DeviceWatch::instance()
{
    // Never deleted: the providers' threads may be asleep in a driver when the process ends.
    static auto *watch = new DeviceWatch;
    return *watch;
}

DeviceWatch::DeviceWatch() : m_firstListingLimit(firstListingLimit)
{
    if (!startGStreamer())
        return;
    GList *factories = providerFactories();
    std::vector<GstPluginFeature *> ordered;
    for (GList *link = factories; link; link = link->next)
        ordered.push_back(GST_PLUGIN_FEATURE(link->data));
    std::stable_sort(ordered.begin(), ordered.end(), comesFirst);

    for (GstPluginFeature *feature : ordered) {
        auto *factory = GST_DEVICE_PROVIDER_FACTORY(feature);
        const bool hasCameras = gst_device_provider_factory_has_classes(factory, cameraClass);
        if (!hasCameras && !gst_device_provider_factory_has_classes(factory, microphoneClass))
            continue;
        ProviderHandle provider(gst_device_provider_factory_get(factory));
        if (!provider)
            continue;
        m_providers.push_back(
            std::make_unique<ProviderWatch>(std::move(provider), factory, [this] { emit changed(); }));
        m_providers.back()->start();
    }
    gst_plugin_feature_list_free(factories);
    watchSoundCards();
}

DeviceWatch::~DeviceWatch() = default;

std::vector<CaptureDevice> DeviceWatch::cameras() const
{
    std::vector<CaptureDevice> cameras = mergeCameras(listed(cameraClass));
    const auto isSetAside = [this](const CaptureDevice &camera) {
        return std::find(m_setAside.begin(), m_setAside.end(), camera.device) != m_setAside.end();
    };
    cameras.erase(std::remove_if(cameras.begin(), cameras.end(), isSetAside), cameras.end());
    return cameras;
}

std::vector<CaptureDevice> DeviceWatch::microphones() const
{
    return listed(microphoneClass);
}

void DeviceWatch::awaitCameras()
{
    awaitFirstListing(cameraClass);
}

void DeviceWatch::awaitMicrophones()
{
    awaitFirstListing(microphoneClass);
}

void DeviceWatch::awaitFirstListing(const char *deviceClass)
{
    const auto isLate = [deviceClass](const auto &provider) {
        return provider->lists(deviceClass) && !provider->isFirstListingDone();
    };
    const auto isListed = [&] { return std::none_of(m_providers.begin(), m_providers.end(), isLate); };
    const std::chrono::milliseconds left(m_firstListingLimit.remainingTime());
    if (waitAlive(isListed, left) || std::exchange(m_isLatenessTold, true))
        return;
    for (const auto &provider : m_providers) {
        if (isLate(provider))
            qCWarning(deviceLog).noquote()
                << provider->name() + QStringLiteral(": It does not answer; its "
                                                     "devices are listed once it does.");
    }
}

std::vector<CaptureDevice> DeviceWatch::listed(const char *deviceClass) const
{
    std::vector<CaptureDevice> listed;
    for (const auto &provider : m_providers) {
        if (!provider->lists(deviceClass))
            continue;
        const auto devices = provider->devices(deviceClass);
        listed.insert(listed.end(), devices.begin(), devices.end());
    }
    return listed;
}

void DeviceWatch::setAside(const CaptureDevice &camera, QThread *opening)
{
    m_setAside.push_back(camera.device);
    const auto takeBack = [this, device = camera.device] {
        m_setAside.erase(std::remove(m_setAside.begin(), m_setAside.end(), device), m_setAside.end());
        emit changed();
    };
    connect(opening, &QThread::finished, this, takeBack);
    if (opening->isFinished())
        takeBack();
}

// The sound cards' provider announces nothing, so the kernel's folder of them is what tells.
void DeviceWatch::watchSoundCards()
{
    m_soundCards.addPath(QString::fromLatin1(soundCardFolder));
    connect(&m_soundCards, &QFileSystemWatcher::directoryChanged, this, [this] {
        for (const auto &provider : m_providers) {
            if (!provider->announcesChanges())
                provider->relist();
        }
    });
}
