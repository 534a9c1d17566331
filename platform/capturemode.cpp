#include "platform/capturemode.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace
{

// Below this a moving page is seen to jerk.
constexpr double smoothRate = 24.0;
// What a lesson needs; a faster camera would only cost processor time.
constexpr double wantedRate = 30.0;
// Cameras name 29.97 and 30.00003 as well as 30.
constexpr double rateTolerance = 0.05;

// Pages are read rather than watched: where a smooth picture is no larger than the first, one from the second
// size on is better, at this rate.
const QSize smallSize(640, 480);
const QSize readableSize(1280, 720);
constexpr double readableRate = 10.0;

// Sizes that a range of sizes is offered in.
const QSize usualSizes[] = {{320, 240},   {640, 480},   {800, 600},   {1024, 768},  {1280, 720},
                            {1280, 960},  {1280, 1024}, {1600, 1200}, {1920, 1080}, {2048, 1536},
                            {2560, 1440}, {2592, 1944}, {3264, 2448}, {3840, 2160}};

// Raw formats by the work that they cost on the way to screen, photo and encoder, least first.
const char *const rawFormats[] = {"I420", "YV12", "NV12", "NV21", "YUY2", "UYVY", "YVYU", "VYUY",
                                  "NV16", "NV61", "Y42B", "Y444", "BGRx", "RGBx", "xRGB", "xBGR",
                                  "BGRA", "RGBA", "ARGB", "ABGR", "BGR",  "RGB"};

int rawFormatCost(const QString &format)
{
    const auto found = std::find(std::begin(rawFormats), std::end(rawFormats), format);
    return int(found - std::begin(rawFormats));
}

// Nothing for what is not told.
template<typename Visit> void forEachValue(const GValue *value, Visit visit)
{
    if (!value)
        return;
    if (GST_VALUE_HOLDS_LIST(value)) {
        for (guint i = 0; i < gst_value_list_get_size(value); ++i)
            forEachValue(gst_value_list_get_value(value, i), visit);
    } else if (GST_VALUE_HOLDS_ARRAY(value)) {
        for (guint i = 0; i < gst_value_array_get_size(value); ++i)
            forEachValue(gst_value_array_get_value(value, i), visit);
    } else {
        visit(value);
    }
}

struct IntRange {
    int low = 0;
    int high = 0;
    int step = 1;
    bool contains(int number) const { return number >= low && number <= high && (number - low) % step == 0; }
};

std::vector<IntRange> intRanges(const GstStructure *structure, const char *field)
{
    std::vector<IntRange> ranges;
    forEachValue(gst_structure_get_value(structure, field), [&](const GValue *one) {
        if (G_VALUE_HOLDS_INT(one))
            ranges.push_back({g_value_get_int(one), g_value_get_int(one), 1});
        else if (GST_VALUE_HOLDS_INT_RANGE(one))
            ranges.push_back({gst_value_get_int_range_min(one), gst_value_get_int_range_max(one),
                              std::max(1, gst_value_get_int_range_step(one))});
    });
    return ranges;
}

// The far ends of a range are mostly what somebody would put up with, not what a camera has.
std::vector<QSize> sizesOf(const GstStructure *structure)
{
    std::vector<QSize> sizes;
    const auto add = [&](const QSize &size) {
        if (!size.isEmpty() && std::find(sizes.begin(), sizes.end(), size) == sizes.end())
            sizes.push_back(size);
    };
    for (const IntRange &width : intRanges(structure, "width")) {
        for (const IntRange &height : intRanges(structure, "height")) {
            if (width.low == width.high && height.low == height.high)
                add({width.low, height.low});
            for (const QSize &usual : usualSizes) {
                if (width.contains(usual.width()) && height.contains(usual.height()))
                    add(usual);
            }
        }
    }
    return sizes;
}

// The rate of a range that comes nearest to the wanted one without falling below what is smooth.
FrameRate rateOfRange(const GValue *range)
{
    const GValue *low = gst_value_get_fraction_range_min(range);
    const GValue *high = gst_value_get_fraction_range_max(range);
    const FrameRate slowest{gst_value_get_fraction_numerator(low), gst_value_get_fraction_denominator(low)};
    const FrameRate fastest{gst_value_get_fraction_numerator(high), gst_value_get_fraction_denominator(high)};
    if (fastest.value() < wantedRate)
        return fastest;
    return slowest.value() > wantedRate ? slowest : FrameRate{int(wantedRate), 1};
}

bool suitsBetter(const FrameRate &a, const FrameRate &b)
{
    const bool aReaches = a.value() >= wantedRate - rateTolerance;
    const bool bReaches = b.value() >= wantedRate - rateTolerance;
    if (aReaches != bReaches)
        return aReaches;
    return aReaches ? a.value() < b.value() : a.value() > b.value();
}

FrameRate suitedRate(const GstStructure *structure)
{
    FrameRate best;
    forEachValue(gst_structure_get_value(structure, "framerate"), [&](const GValue *one) {
        FrameRate rate;
        if (GST_VALUE_HOLDS_FRACTION(one))
            rate = {gst_value_get_fraction_numerator(one), gst_value_get_fraction_denominator(one)};
        else if (GST_VALUE_HOLDS_FRACTION_RANGE(one))
            rate = rateOfRange(one);
        if (rate.numerator > 0 && (best.numerator == 0 || suitsBetter(rate, best)))
            best = rate;
    });
    return best;
}

// The pixel format to ask for, the cheapest that is offered; empty when none can be used.
QString usableRawFormat(const GstStructure *structure)
{
    QString best;
    forEachValue(gst_structure_get_value(structure, "format"), [&](const GValue *one) {
        if (!G_VALUE_HOLDS_STRING(one))
            return;
        const QString format = QString::fromLatin1(g_value_get_string(one));
        if (rawFormatCost(format) < rawFormatCost(best))
            best = format;
    });
    return best;
}

bool inSystemMemory(const GstCaps *caps, guint index)
{
    const GstCapsFeatures *features = gst_caps_get_features(caps, index);
    return !features || gst_caps_features_is_equal(features, GST_CAPS_FEATURES_MEMORY_SYSTEM_MEMORY);
}

bool describeCoding(const GstStructure *structure, CaptureMode *mode)
{
    if (gst_structure_has_name(structure, "video/x-raw")) {
        mode->coding = CaptureMode::Coding::Raw;
        mode->rawFormat = usableRawFormat(structure);
        return !mode->rawFormat.isEmpty();
    }
    if (gst_structure_has_name(structure, "image/jpeg")) {
        mode->coding = CaptureMode::Coding::Jpeg;
        return true;
    }
    mode->coding = CaptureMode::Coding::H264;
    return gst_structure_has_name(structure, "video/x-h264");
}

bool isSmooth(const CaptureMode &mode)
{
    return mode.rate.value() >= smoothRate - rateTolerance;
}

qint64 area(const QSize &size)
{
    return qint64(size.width()) * size.height();
}

// Whether two rates give the same movement to the eye; what differs by less is decided by the coding.
bool sameRate(const CaptureMode &a, const CaptureMode &b)
{
    return std::abs(a.rate.value() - b.rate.value()) < 1.0;
}

bool betterAtOneSize(const CaptureMode &a, const CaptureMode &b)
{
    if (isSmooth(a) != isSmooth(b))
        return isSmooth(a);
    if (!sameRate(a, b))
        return suitsBetter(a.rate, b.rate);
    if (a.coding != b.coding)
        return a.coding < b.coding;
    return rawFormatCost(a.rawFormat) < rawFormatCost(b.rawFormat);
}

bool isReadable(const CaptureMode &mode)
{
    return mode.rate.value() >= readableRate - rateTolerance && mode.size.width() >= readableSize.width() &&
           mode.size.height() >= readableSize.height();
}

bool betterNative(const CaptureMode &a, const CaptureMode &b)
{
    if (isSmooth(a) != isSmooth(b))
        return isSmooth(a);
    if (area(a.size) != area(b.size))
        return area(a.size) > area(b.size);
    return betterAtOneSize(a, b);
}

} // namespace

std::vector<CaptureMode> captureModes(const GstCaps *caps)
{
    std::vector<CaptureMode> modes;
    for (guint i = 0; caps && i < gst_caps_get_size(caps); ++i) {
        const GstStructure *structure = gst_caps_get_structure(caps, i);
        CaptureMode mode;
        if (!inSystemMemory(caps, i) || !describeCoding(structure, &mode))
            continue;
        mode.rate = suitedRate(structure);
        for (const QSize &size : sizesOf(structure)) {
            mode.size = size;
            modes.push_back(mode);
        }
    }
    return modes;
}

CaptureMode nativeMode(const std::vector<CaptureMode> &modes)
{
    const auto best = std::min_element(modes.begin(), modes.end(), betterNative);
    if (best == modes.end())
        return {};
    if (!isSmooth(*best) || area(best->size) > area(smallSize))
        return *best;
    std::vector<CaptureMode> readable;
    std::copy_if(modes.begin(), modes.end(), std::back_inserter(readable), isReadable);
    return readable.empty() ? *best : *std::min_element(readable.begin(), readable.end(), betterNative);
}

CaptureMode modeOfSize(const std::vector<CaptureMode> &modes, const QSize &size)
{
    CaptureMode best;
    for (const CaptureMode &mode : modes) {
        if (mode.size == size && (!best.isValid() || betterAtOneSize(mode, best)))
            best = mode;
    }
    return best;
}

QStringList resolutionNames(const std::vector<CaptureMode> &modes)
{
    std::vector<QSize> sizes;
    std::transform(modes.begin(), modes.end(), std::back_inserter(sizes),
                   [](const CaptureMode &mode) { return mode.size; });
    std::sort(sizes.begin(), sizes.end(), [](const QSize &a, const QSize &b) {
        return area(a) != area(b) ? area(a) < area(b) : a.width() < b.width();
    });
    sizes.erase(std::unique(sizes.begin(), sizes.end()), sizes.end());
    QStringList names;
    for (const QSize &size : sizes)
        names << QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
    return names;
}

CapsHandle fixedCaps(const CaptureMode &mode)
{
    const char *const mediaTypes[] = {"video/x-raw", "image/jpeg", "video/x-h264"};
    CapsHandle caps(gst_caps_new_simple(mediaTypes[int(mode.coding)], "width", G_TYPE_INT, mode.size.width(),
                                        "height", G_TYPE_INT, mode.size.height(), nullptr));
    if (mode.coding == CaptureMode::Coding::Raw)
        gst_caps_set_simple(caps.get(), "format", G_TYPE_STRING, mode.rawFormat.toLatin1().constData(),
                            nullptr);
    // A camera that names no rate has a single one.
    if (mode.rate.numerator > 0)
        gst_caps_set_simple(caps.get(), "framerate", GST_TYPE_FRACTION, mode.rate.numerator,
                            mode.rate.denominator, nullptr);
    return caps;
}
