// The control file `orvane-test-devices.ini` in $XDG_RUNTIME_DIR: a section "camera ID" or "microphone ID"
// for each device that is there. Keys:
//   name      as listed; the section's name if left out
//   provider  a or b
//   prop.*    what the device tells of itself
//   formats   of a camera, as "YUY2 1920x1080 30;JPEG 640x480 30"; "interlaced" may stand behind a raw one
//   content   of a camera: page, flash, counter, quarters, rows (red and blue ones in turn), or a colour as
//             RRGGBB
//   under-way  of a camera's frame: milliseconds from its capture until it comes; none if left out
//   dim-room  of a camera: the control by which it gives every second frame only, unless it is switched off
//   padding   of a raw camera's rows: so many bytes more than they need
//   damaged   every so manieth frame is: a JPEG in its bytes, a raw one by its driver's word
//   damage    "no-end" for JPEGs that lack nothing but their end marker
//   oddities  "yes" for JPEGs that libjpeg warns of though they are whole
//   sound     of a microphone: silence, tone or beep
//   clock     of a microphone: by how many millionths of its rate it is fast
//   bursts    of a microphone: gives its sound every so many milliseconds, as fast as it is taken
//   opens-after  milliseconds that opening takes; none if left out
//   fault     stall (gives nothing more and tells nothing), hang-open, hang-close (blocks there as long as
//             this stands), busy, no-permission (cannot be opened), no-bandwidth (opens, but its stream does
//             not start), read-error (the next frame is an error), ends (the stream ends without an error);
//             of a camera also other-size (pictures of half the size, which nothing tells), other-format (the
//             last of its formats, which the stream tells), short and long (frames that lack bytes or have
//             too many), wild-times (time stamps that go back in turn to the stream's beginning and ahead by
//             an hour), flood (10,000 frames a second)
//   order     how it is told that a running device has gone: error-first (by the stream, then by the
//             provider), removed-first, removed-only, error-only
// A section "coder ELEMENT" is there for each of hardware's encoders and decoders that can be used; its key
//   fault     crashes, hangs, fails; of an encoder also costly, wrong (other pictures), holds-back
// A section "provider a" or "provider b" has the key
//   fault     refuses (does not start), dead (nor does it follow the file any more)
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <string>

struct DeviceSettings {
    // Without a fallback, what is not there is empty.
    std::string value(const std::string &key, const std::string &fallback = {}) const;
    // Whether a listing shows both the same way, so that only a running source sees the difference.
    bool isListedLike(const DeviceSettings &other) const;

    std::map<std::string, std::string> values;
};

using ControlFile = std::map<std::string, DeviceSettings>;

// As it is now; never nullptr. Read again only when the file was replaced.
std::shared_ptr<const ControlFile> readControlFile();

// How often the devices look whether the file was replaced: short against what tests wait for.
constexpr auto pollPeriod = std::chrono::milliseconds(5);
// Between the two ways in which a loss is told, so that their order is sure.
constexpr int64_t tellingGap = 50'000'000;
