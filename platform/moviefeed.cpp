#include "platform/moviefeed.h"

#include <utility>

namespace
{

// One that is being made, and one that may wait for it. More would keep more of a camera's few buffers.
constexpr int mostPictures = 2;

} // namespace

MovieFeed::MovieFeed(std::shared_ptr<MovieRecorder> movie) : m_movie(std::move(movie)), m_room(mostPictures)
{
    m_worker.setMaxThreadCount(1);
}

MovieFeed::~MovieFeed()
{
    m_worker.waitForDone();
    m_movie->noteLastFrame();
}

void MovieFeed::add(const FramePtr &frame, FramePlanes *planes, const Framing &framing, const QSize &box)
{
    MoviePictures::prepare(frame, planes, framing, m_movie->settings().picture, box);
    m_room.acquire();
    m_worker.start([this, frame, planes = *planes, framing]() mutable {
        if (const FramePtr picture = m_pictures.make(frame, &planes, framing, m_movie->settings().picture))
            m_movie->take(picture);
        m_room.release();
    });
}
