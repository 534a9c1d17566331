#pragma once

#include "platform/captureevents.h"
#include "platform/framing.h"
#include "platform/newestframe.h"

#include <QImage>
#include <QString>

#include <memory>
#include <mutex>
#include <optional>

// What one still picture is made from and where it goes.
struct StillOrder {
    FramePtr frame;                            // taken when it is whole
    std::shared_ptr<const NewestFrame> frames; // else the next whole one of these, within a second
    Framing framing;
    QString path; // of the PNG file; nothing is ever replaced
};

// A still picture on its way from the camera's frame to its PNG file, of the camera's full size. With zoom it
// is the shown part, scaled smoothly to that size; turned as it is shown. One thread makes it, another one
// asks how far it is.
class StillPicture
{
public:
    // isShown: a copy for the window is made, for takePicture().
    StillPicture(StillOrder order, bool isShown);

    // Makes the picture and its file, once; takes as long as the disk does. When no frame of a second is
    // whole, there is none. No file is left of one that cannot be written.
    void save();

    // For the window, Format_RGB32, as soon as it is there and before its file is: given out once, else null.
    QImage takePicture();
    // How it went; nothing before save() is through.
    std::optional<PhotoFault> result() const;
    // Stops waiting for a disk that hangs: how it went, or DiskHangs. A file that comes later is removed.
    PhotoFault giveUp();

private:
    PhotoFault make();
    PhotoFault write(const QImage &picture);
    void offer(const QImage &picture);

    StillOrder m_order;
    const bool m_isShown;

    mutable std::mutex m_mutex; // guards all below
    QImage m_picture;
    std::optional<PhotoFault> m_result;
};
