#include "tests/plugins/deviceformats.h"

#include <regex>
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

// "30" is a fraction, "30,15" a list, "5-30" a range.
std::string rates(const std::string &text)
{
    const auto dash = text.find('-');
    if (dash != std::string::npos)
        return "[" + asFraction(text.substr(0, dash)) + "," + asFraction(text.substr(dash + 1)) + "]";
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

// Empty when the entry is not understood.
std::string capsText(const std::string &entry)
{
    static const std::regex pattern(R"(\s*(\w+) (\d+)x(\d+)(?:-(\d+)x(\d+))?(?: ([\d/,-]+))?\s*)");
    std::smatch part;
    if (!std::regex_match(entry, part, pattern))
        return {};
    std::string text =
        mediaType(part[1]) + ",width=" + extent(part[2], part[4]) + ",height=" + extent(part[3], part[5]);
    if (part[6].matched)
        text += ",framerate=" + rates(part[6]);
    return text;
}

} // namespace

GstCaps *cameraCaps(const DeviceSettings &camera)
{
    GstCaps *caps = gst_caps_new_empty();
    std::stringstream entries(camera.formats);
    for (std::string entry; std::getline(entries, entry, ';');) {
        const std::string text = capsText(entry);
        GstCaps *one = text.empty() ? nullptr : gst_caps_from_string(text.c_str());
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
