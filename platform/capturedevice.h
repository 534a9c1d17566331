#pragma once

#include "platform/capturemode.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

// A camera or microphone as one device provider describes it. Copies share the device.
struct CaptureDevice {
    std::shared_ptr<GstDevice> device;
    QString provider; // factory name of the provider that lists it
    QString name;     // what the user reads
    QString node; // device node, "/dev/video0" or "/dev/snd/pcmC0D0c"; empty when the provider does not tell
    QString vendor; // of the hardware, as are the next four; each may be empty
    QString product;
    QString serial;
    QString busPath;
    QString usbPort;        // port and interface, "6:1.0", where the bus path tells them
    bool isDirect = false;  // the kernel's own device rather than a sound or picture server's view of it
    bool isDefault = false; // the user's chosen microphone
    bool isMonitor = false; // what a loudspeaker plays, offered as a source
};

// Reads what the provider tells of a device; every property may be missing.
CaptureDevice describeDevice(GstDevice *device, const QString &provider);

// The modes of a camera; empty when it is none, or none that a picture can be taken from.
std::vector<CaptureMode> modesOf(const CaptureDevice &camera);

// Whether a picture for a lesson can come from it: neither a node that gives no picture nor an infrared twin.
bool isUsableCamera(const CaptureDevice &device);

// Whether all that their maker gave them is alike.
bool isSameMake(const CaptureDevice &a, const CaptureDevice &b);

// Whether both are the same piece of hardware, seen through different providers or listed again.
bool isSameDevice(const CaptureDevice &a, const CaptureDevice &b);

// The camera of the list that was chosen once: that very device; else the one of the same make and serial
// number in the same socket, since a camera that was pulled out and put back may have another node; where
// several tell the same socket or none, the one of the same node, or the first; else the only one of that
// make and number, in whatever socket. Null when it is not there.
const CaptureDevice *findAgain(const std::vector<CaptureDevice> &listed, const CaptureDevice &chosen);

// The cameras of all providers, in the order given, each piece of hardware once. Where the kernel's own
// device and a server's view of it are both there, the kernel's stands.
std::vector<CaptureDevice> mergeCameras(const std::vector<CaptureDevice> &listed);

// What the user reads of these cameras, in their order. Where several have one name, a number behind it tells
// them apart, from the second on, in the order of their ports, else of their nodes.
QStringList choiceNames(const std::vector<CaptureDevice> &cameras);

// The microphone that a movie is recorded with: the user's default, else the first of the sound servers,
// else the first at all. Null when there is none; loudspeakers' monitors never count.
const CaptureDevice *defaultMicrophone(const std::vector<CaptureDevice> &listed);
