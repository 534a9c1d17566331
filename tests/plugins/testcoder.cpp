#include "tests/plugins/testcoder.h"
#include "tests/plugins/controlfile.h"

#include <cstdlib>
#include <string>
#include <thread>

namespace
{

constexpr char encoderInput[] = "video/x-raw,format=I420";
constexpr char encoderOutput[] = "video/x-h264,stream-format=byte-stream,alignment=au";
constexpr char decoderInput[] = "video/x-h264,stream-format={byte-stream,avc},alignment=au";
constexpr char decoderOutput[] = "video/x-raw";

struct Kind {
    const char *name;
    bool isEncoder;
};
const Kind kinds[] = {{"vah264enc", true},
                      {"vah264lpenc", true},
                      {"v4l2h264enc", true},
                      {"vah264dec", false},
                      {"v4l2h264dec", false}};

struct OrvaneTestCoder {
    GstBin parent;
    GAsyncQueue *raw; // the pictures that are to come out of a decoder
};

struct OrvaneTestCoderClass {
    GstBinClass parent;
    const Kind *kind;
};

const Kind &kindOf(gpointer coder)
{
    return *reinterpret_cast<OrvaneTestCoderClass *>(G_OBJECT_GET_CLASS(coder))->kind;
}

// Empty when it works; "absent" when it cannot be used at all.
std::string faultOf(gpointer coder)
{
    const auto control = readControlFile();
    const auto section = control->find(std::string("coder ") + kindOf(coder).name);
    return section == control->end() ? "absent" : section->second.value("fault");
}

std::string encoderWith(const std::string &fault)
{
    if (fault == "costly")
        return "x264enc speed-preset=slower tune=zerolatency";
    if (fault == "holds-back")
        return "x264enc speed-preset=ultrafast rc-lookahead=20 b-adapt=true bframes=3";
    if (fault == "wrong")
        return "videobalance contrast=0.2 ! x264enc speed-preset=ultrafast tune=zerolatency";
    return "x264enc speed-preset=ultrafast tune=zerolatency pass=qual quantizer=30";
}

} // namespace

G_DEFINE_TYPE(OrvaneTestCoder, orvane_test_coder, GST_TYPE_BIN)

namespace
{

OrvaneTestCoder *coderOf(gpointer coder)
{
    return static_cast<OrvaneTestCoder *>(coder);
}

// No software is as fast as hardware. Where the pictures are there that were encoded for a trial, the decoder
// gives these.
GstPadProbeReturn keepRaw(GstPad *, GstPadProbeInfo *info, gpointer coder)
{
    g_async_queue_push(coderOf(coder)->raw, gst_buffer_ref(GST_PAD_PROBE_INFO_BUFFER(info)));
    return GST_PAD_PROBE_OK;
}

GstElement *topOf(GstElement *element)
{
    GstObject *top = GST_OBJECT(element);
    while (GST_OBJECT_PARENT(top))
        top = GST_OBJECT_PARENT(top);
    return GST_ELEMENT(top);
}

bool followRaw(OrvaneTestCoder *coder)
{
    GstElement *origin = gst_bin_get_by_name(GST_BIN(topOf(GST_ELEMENT(coder))), "rawvideoparse0");
    if (!origin)
        return false;
    GstPad *pad = gst_element_get_static_pad(origin, "src");
    gst_pad_add_probe(pad, GST_PAD_PROBE_TYPE_BUFFER, keepRaw, coder, nullptr);
    gst_object_unref(pad);
    gst_object_unref(origin);
    return true;
}

std::string decoderFor(OrvaneTestCoder *coder)
{
    return followRaw(coder) ? "capssetter replace=true join=false caps=video/x-raw,format=I420,width=1920,"
                              "height=1080,framerate=30/1"
                            : "avdec_h264";
}

void takeRaw(OrvaneTestCoder *coder, GstPadProbeInfo *info)
{
    auto *raw = static_cast<GstBuffer *>(g_async_queue_try_pop(coder->raw));
    if (!raw)
        return;
    GstBuffer *coded = GST_PAD_PROBE_INFO_BUFFER(info);
    raw = gst_buffer_make_writable(raw);
    gst_buffer_copy_into(raw, coded, GST_BUFFER_COPY_TIMESTAMPS, 0, -1);
    gst_buffer_unref(coded);
    GST_PAD_PROBE_INFO_DATA(info) = raw;
}

GstPadProbeReturn onFrame(GstPad *, GstPadProbeInfo *info, gpointer coder)
{
    takeRaw(coderOf(coder), info);
    if (faultOf(coder) == "crashes")
        std::_Exit(EXIT_FAILURE);
    while (faultOf(coder) == "hangs")
        std::this_thread::sleep_for(pollPeriod);
    if (faultOf(coder) != "fails")
        return GST_PAD_PROBE_OK;
    GST_ELEMENT_ERROR(coder, LIBRARY, ENCODE, ("The hardware has failed."), (nullptr));
    return GST_PAD_PROBE_DROP;
}

void setContents(OrvaneTestCoder *coder, const std::string &description)
{
    GstElement *contents = gst_parse_bin_from_description(description.c_str(), TRUE, nullptr);
    gst_bin_add(GST_BIN(coder), contents);
    for (const char *name : {"sink", "src"}) {
        GstPad *outside = gst_element_get_static_pad(GST_ELEMENT(coder), name);
        GstPad *inside = gst_element_get_static_pad(contents, name);
        gst_ghost_pad_set_target(GST_GHOST_PAD(outside), inside);
        gst_object_unref(inside);
        gst_object_unref(outside);
    }
}

GstStateChangeReturn changeState(GstElement *element, GstStateChange change)
{
    auto *coder = coderOf(element);
    const std::string fault = faultOf(coder);
    if (change == GST_STATE_CHANGE_NULL_TO_READY) {
        if (fault == "absent") {
            GST_ELEMENT_ERROR(element, RESOURCE, NOT_FOUND, ("There is no such hardware."), (nullptr));
            return GST_STATE_CHANGE_FAILURE;
        }
        setContents(coder, kindOf(coder).isEncoder ? encoderWith(fault) : decoderFor(coder));
    }
    return GST_ELEMENT_CLASS(orvane_test_coder_parent_class)->change_state(element, change);
}

void finalize(GObject *coder)
{
    g_async_queue_unref(coderOf(coder)->raw);
    G_OBJECT_CLASS(orvane_test_coder_parent_class)->finalize(coder);
}

// The settings of all hardware's encoders, which change nothing here.
void ignoreProperty(GObject *, guint, const GValue *, GParamSpec *) {}

void addPad(OrvaneTestCoder *coder, const char *name, GstPadDirection direction)
{
    GstPad *pad = gst_ghost_pad_new_no_target(name, direction);
    gst_element_add_pad(GST_ELEMENT(coder), pad);
    if (direction == GST_PAD_SINK)
        gst_pad_add_probe(pad, GST_PAD_PROBE_TYPE_BUFFER, onFrame, coder, nullptr);
}

void addTemplate(GstElementClass *type, const char *name, GstPadDirection direction, const char *formats)
{
    GstCaps *caps = gst_caps_from_string(formats);
    gst_element_class_add_pad_template(type, gst_pad_template_new(name, direction, GST_PAD_ALWAYS, caps));
    gst_caps_unref(caps);
}

void initKind(gpointer type, gpointer data)
{
    const auto *kind = static_cast<const Kind *>(data);
    static_cast<OrvaneTestCoderClass *>(type)->kind = kind;
    addTemplate(GST_ELEMENT_CLASS(type), "sink", GST_PAD_SINK, kind->isEncoder ? encoderInput : decoderInput);
    addTemplate(GST_ELEMENT_CLASS(type), "src", GST_PAD_SRC, kind->isEncoder ? encoderOutput : decoderOutput);
    gst_element_class_set_static_metadata(GST_ELEMENT_CLASS(type), kind->name, "Codec/Video/Hardware",
                                          "Stands for hardware", "Orvane");
}

} // namespace

static void orvane_test_coder_class_init(OrvaneTestCoderClass *type)
{
    auto *object = G_OBJECT_CLASS(type);
    object->set_property = ignoreProperty;
    guint id = 0;
    for (const char *name : {"bitrate", "key-int-max", "b-frames"})
        g_object_class_install_property(
            object, ++id, g_param_spec_uint(name, name, name, 0, G_MAXUINT, 0, G_PARAM_WRITABLE));
    g_object_class_install_property(
        object, ++id,
        g_param_spec_string("rate-control", "rate-control", "rate-control", nullptr, G_PARAM_WRITABLE));
    g_object_class_install_property(object, ++id,
                                    g_param_spec_boxed("extra-controls", "extra-controls", "extra-controls",
                                                       GST_TYPE_STRUCTURE, G_PARAM_WRITABLE));
    object->finalize = finalize;
    GST_ELEMENT_CLASS(type)->change_state = changeState;
}

static void orvane_test_coder_init(OrvaneTestCoder *coder)
{
    coder->raw = g_async_queue_new_full([](gpointer raw) { gst_buffer_unref(GST_BUFFER(raw)); });
    addPad(coder, "sink", GST_PAD_SINK);
    addPad(coder, "src", GST_PAD_SRC);
}

gboolean registerTestCoders(GstPlugin *plugin)
{
    for (const Kind &kind : kinds) {
        const GTypeInfo info = {sizeof(OrvaneTestCoderClass), nullptr, nullptr, initKind, nullptr, &kind,
                                sizeof(OrvaneTestCoder),      0,       nullptr, nullptr};
        const std::string name = std::string("OrvaneTestCoder-") + kind.name;
        const GType type =
            g_type_register_static(orvane_test_coder_get_type(), name.c_str(), &info, GTypeFlags(0));
        if (!gst_element_register(plugin, kind.name, GST_RANK_NONE, type))
            return FALSE;
    }
    return TRUE;
}
