#include "tests/plugins/deviceformats.h"

#include <sstream>

namespace
{

std::string mediaType(const std::string &format)
{
    if (format == "JPEG")
        return "image/jpeg";
    if (format == "H264")
        return "video/x-h264,stream-format=byte-stream,alignment=au";
    return "video/x-raw,format=" + format;
}

std::string asFraction(const std::string &rate)
{
    return rate.find('/') == std::string::npos ? rate + "/1" : rate;
}

// The text before and after the first of a mark; after is empty when there is none.
std::pair<std::string, std::string> split(const std::string &text, char mark)
{
    const auto at = text.find(mark);
    return {text.substr(0, at), at == std::string::npos ? std::string() : text.substr(at + 1)};
}

// "30" is a fraction, "30,15" a list, "5-30" a range.
std::string rates(const std::string &text)
{
    const auto [lowest, highest] = split(text, '-');
    if (!highest.empty())
        return "[" + asFraction(lowest) + "," + asFraction(highest) + "]";
    std::stringstream parts(text);
    std::string list;
    int count = 0;
    for (std::string rate; std::getline(parts, rate, ','); ++count)
        list += (list.empty() ? "" : ",") + asFraction(rate);
    return count > 1 ? "{" + list + "}" : list;
}

std::string extent(const std::string &from, const std::string &to)
{
    return to.empty() ? from : "[" + from + "," + to + "]";
}

std::string capsText(const std::string &entry)
{
    std::istringstream words(entry);
    std::string format;
    std::string sizes;
    std::string rate;
    words >> format >> sizes >> rate;
    const auto [smallest, largest] = split(sizes, '-');
    const auto from = split(smallest, 'x');
    const auto to = split(largest, 'x');
    std::string text = mediaType(format) + ",width=" + extent(from.first, to.first) +
                       ",height=" + extent(from.second, to.second);
    if (!rate.empty())
        text += ",framerate=" + rates(rate);
    return text;
}

} // namespace

GstCaps *cameraCaps(const DeviceSettings &camera)
{
    GstCaps *caps = gst_caps_new_empty();
    std::stringstream entries(camera.formats);
    for (std::string entry; std::getline(entries, entry, ';');) {
        GstCaps *one = gst_caps_from_string(capsText(entry).c_str());
        if (one)
            gst_caps_append(caps, one);
        else
            g_warning("camera \"%s\": format \"%s\" is not understood", camera.id.c_str(), entry.c_str());
    }
    return caps;
}

GstCaps *microphoneCaps(const DeviceSettings &)
{
    return gst_caps_from_string("audio/x-raw,format=S16LE,layout=interleaved,rate=48000,channels=[1,2]");
}

GstCaps *anyCameraCaps()
{
    return gst_caps_from_string(
        "video/x-raw; image/jpeg; video/x-h264,stream-format=byte-stream,alignment=au");
}
