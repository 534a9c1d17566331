#include "platform/devicewatch.h"

#include "platform/capturelog.h"
#include "platform/providerwatch.h"
#include "util/files/alivewait.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <thread>
#include <utility>

namespace
{

// A provider without its server answers in milliseconds; one that takes longer than this hangs.
constexpr auto firstListingLimit = std::chrono::milliseconds(1500);

// After a change in a folder: nodes get their permissions, and servers answer, a little later.
constexpr auto settlingTime = std::chrono::milliseconds(500);

constexpr char deviceFolder[] = "/dev";
constexpr char soundCardFolder[] = "/dev/snd";
// A sound server that starts anew has another one of these in the user's run folder.
constexpr const char *serverFiles[] = {"pulse/pid", "pulse/native", "pipewire-0", "pipewire-0.lock"};

constexpr char cameraClass[] = "Video/Source";
constexpr char microphoneClass[] = "Audio/Source";

QString runFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
}

// Which sound servers there are: another text once one has come, gone or started anew.
QString serversNow()
{
    QString servers;
    for (const char *name : serverFiles) {
        const QFileInfo file(runFolder() + QLatin1Char('/') + QLatin1String(name));
        servers += file.metadataChangeTime().toString(Qt::ISODateWithMs) + QLatin1Char(';');
    }
    return servers;
}

QString soundCardsNow()
{
    const QDir::Filters all = QDir::System | QDir::Files;
    return QDir(QString::fromLatin1(soundCardFolder)).entryList(all).join(QLatin1Char(' '));
}

bool isSoundServers(const ProviderWatch &provider)
{
    return provider.name() == QLatin1String("pulsedeviceprovider") ||
           provider.name() == QLatin1String("pipewiredeviceprovider");
}

bool isSoundCards(const ProviderWatch &provider)
{
    return provider.name() == QLatin1String("alsadeviceprovider");
}

bool isNotKernels(const ProviderWatch &provider)
{
    return provider.name() != QLatin1String("v4l2deviceprovider");
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
    addProviders();
    watchFolders();
    for (const auto &provider : m_providers)
        provider->start();
}

void DeviceWatch::addProviders()
{
    const auto mayRun = [this](const ProviderWatch &provider) {
        return !isSoundCards(provider) || mayLookForSoundCards();
    };
    GList *factories = providerFactories();
    for (GList *link = factories; link; link = link->next) {
        auto *factory = GST_DEVICE_PROVIDER_FACTORY(link->data);
        const bool hasCameras = gst_device_provider_factory_has_classes(factory, cameraClass);
        if (!hasCameras && !gst_device_provider_factory_has_classes(factory, microphoneClass))
            continue;
        if (ProviderHandle provider{gst_device_provider_factory_get(factory)})
            m_providers.push_back(
                std::make_unique<ProviderWatch>(std::move(provider), mayRun, [this] { emit changed(); }));
    }
    gst_plugin_feature_list_free(factories);
    // The kernel's cameras first: where a server lists the same camera too, the order of the list must not
    // depend on which of the two was quicker.
    std::stable_partition(m_providers.begin(), m_providers.end(),
                          [](const auto &provider) { return !isNotKernels(*provider); });
}

// Looking for sound cards opens each, which takes it from a sound server that is just opening it.
bool DeviceWatch::mayLookForSoundCards() const
{
    constexpr auto period = std::chrono::milliseconds(20);
    const auto isLate = [](const auto &provider) {
        return isSoundServers(*provider) && !provider->isFirstListingDone();
    };
    while (!m_firstListingLimit.hasExpired() && std::any_of(m_providers.begin(), m_providers.end(), isLate))
        std::this_thread::sleep_for(period);
    return !hasSoundServer();
}

bool DeviceWatch::hasSoundServer() const
{
    for (const auto &provider : m_providers) {
        if (!isSoundServers(*provider))
            continue;
        // A picture server may run without minding the sound.
        const bool mindsSound = provider->name() == QLatin1String("pulsedeviceprovider") ||
                                !provider->devices(microphoneClass).empty();
        if (provider->isRunning() && mindsSound)
            return true;
    }
    return false;
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

std::vector<CaptureDevice> DeviceWatch::awaitCameras()
{
    awaitFirstListing(cameraClass);
    return cameras();
}

std::vector<CaptureDevice> DeviceWatch::awaitMicrophones()
{
    awaitFirstListing(microphoneClass);
    return microphones();
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

// The sound cards' provider announces nothing, and no provider tells that its server has ended.
void DeviceWatch::watchFolders()
{
    m_soundCards = soundCardsNow();
    m_servers = serversNow();
    m_settling.setSingleShot(true);
    m_settling.setInterval(settlingTime);
    connect(&m_settling, &QTimer::timeout, this, &DeviceWatch::lookAtFolders);
    connect(&m_folders, &QFileSystemWatcher::directoryChanged, this, [this] {
        if (!m_settling.isActive())
            m_settling.start();
    });
    connect(
        this, &DeviceWatch::changed, this,
        [this] {
            const bool hasOne = hasSoundServer();
            if (std::exchange(m_hadSoundServer, hasOne) != hasOne)
                restartAll(isSoundCards);
        },
        Qt::QueuedConnection);
    lookAtFolders();
}

void DeviceWatch::lookAtFolders()
{
    // A folder that was not there could not be watched.
    for (const QString &folder : {QString::fromLatin1(deviceFolder), QString::fromLatin1(soundCardFolder),
                                  runFolder(), QString(runFolder() + QStringLiteral("/pulse"))}) {
        if (!m_folders.directories().contains(folder) && QFileInfo::exists(folder))
            m_folders.addPath(folder);
    }
    const QString servers = serversNow();
    const QString cards = soundCardsNow();
    if (std::exchange(m_servers, servers) != servers)
        restartAll(isNotKernels);
    else if (std::exchange(m_soundCards, cards) != cards)
        restartAll(isSoundCards);
    m_soundCards = cards;
}

void DeviceWatch::restartAll(bool (*which)(const ProviderWatch &))
{
    for (const auto &provider : m_providers) {
        if (which(*provider))
            provider->restart();
    }
}
