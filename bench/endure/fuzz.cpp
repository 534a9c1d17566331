// What comes from outside, as hostile as libFuzzer makes it. Each program tries one of these functions, whose
// name it is built with.

#include "platform/capturemode.h"
#include "platform/jpegdecoder.h"
#include "settings/settingsfile.h"
#include "util/files/capturelist.h"
#include "util/files/pasterequest.h"
#include "util/files/photofile.h"

#include <QDir>
#include <QTemporaryDir>

#include <cstdlib>
#include <sanitizer/lsan_interface.h>

namespace
{

constexpr qint64 pixelBudget = 1 << 22;

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        std::abort();
}

[[maybe_unused]] void settings(const QByteArray &bytes)
{
    const QStringList keys = {"AutoShoot", "SaveDirectory", "Resolution"};
    write(QDir::home().filePath(".hollin_orvane.ini"), bytes);
    const QVariantMap values = SettingsFile::read(keys);
    SettingsFile::write(values);
    if (SettingsFile::read(keys).keys() != values.keys())
        std::abort();
}

[[maybe_unused]] void photo(const QByteArray &bytes)
{
    const QString path = QDir::temp().filePath("photo.png");
    write(path, bytes);
    const QImage image = decodePhoto(path, pixelBudget);
    if (qint64(image.width()) * image.height() > pixelBudget)
        std::abort();
}

// The names of a folder's files.
[[maybe_unused]] void listing(const QByteArray &bytes)
{
    const QTemporaryDir folder;
    for (const QByteArray &name : bytes.split('\n'))
        QFile(folder.path() + '/' + QFile::decodeName(name)).open(QIODevice::WriteOnly);
    const QStringList captures = capturesOldestFirst(folder.path(), {"*"});
    const QStringList paired = pairedMovies(folder.path());
    for (const QString &name : captures + paired) {
        if (!QFile::exists(folder.filePath(name)) || name.contains('/'))
            std::abort();
    }
}

// The files' folder, and their names.
[[maybe_unused]] void request(const QByteArray &bytes)
{
    const QTemporaryDir drop;
    QStringList words;
    for (const QByteArray &word : bytes.split('\0'))
        words << QFile::decodeName(word);
    if (!writePasteRequest(drop.path(), {"0", "1x1", words.first(), words.mid(1)}))
        return;
    QFile file(QDir(drop.path()).entryInfoList(QDir::Files).value(0).filePath());
    if (!file.open(QIODevice::ReadOnly))
        std::abort();
    QList<QByteArray> lines = file.readAll().split('\n');
    if (lines.size() < 4 || !lines.takeLast().isEmpty() || lines.takeFirst() != "0" ||
        lines.takeFirst() != "1x1")
        std::abort();
    for (const QByteArray &line : lines) {
        if (!words.removeOne(QString::fromUtf8(line)))
            std::abort();
    }
}

[[maybe_unused]] void jpeg(const QByteArray &bytes)
{
    static PlaneMemory memory;
    const QSize announced(640, 480);
    GstBuffer *frame = gst_buffer_new_memdup(bytes.constData(), gsize(bytes.size()));
    for (const int denominator : {1, 2, 4, 8})
        JpegDecoder::decode(frame, announced, denominator, &memory);
    bool isWhole = false;
    JpegDecoder::decodeRgb(frame, announced, &isWhole);
    gst_buffer_unref(frame);
}

[[maybe_unused]] void caps(const QByteArray &bytes)
{
    // GStreamer's parser leaks where a list does not end. No camera's caps are text.
    __lsan_disable();
    GstCaps *caps = gst_caps_from_string(bytes.constData());
    __lsan_enable();
    if (!caps)
        return;
    const std::vector<CaptureMode> modes = captureModes(caps);
    const CaptureMode mode = nativeMode(modes);
    if (mode.isValid() && !gst_caps_can_intersect(fixedCaps(mode).get(), caps))
        std::abort();
    resolutionNames(modes);
    gst_caps_unref(caps);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    gst_init(nullptr, nullptr);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FUZZED(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    return 0;
}
