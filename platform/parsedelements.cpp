#include "platform/parsedelements.h"

#include "platform/capturelog.h"

GstElement *parseElements(const QString &description, QString *fault)
{
    constexpr auto flags = GstParseFlags(GST_PARSE_FLAG_FATAL_ERRORS | GST_PARSE_FLAG_NO_SINGLE_ELEMENT_BINS |
                                         GST_PARSE_FLAG_PLACE_IN_BIN);
    GError *problem = nullptr;
    GstElement *made =
        gst_parse_bin_from_description_full(description.toUtf8(), TRUE, nullptr, flags, &problem);
    const ErrorHandle error(problem);
    if (error)
        *fault = errorText(error.get(), nullptr);
    return made;
}
