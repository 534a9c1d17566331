#pragma once

#include "platform/moviepictures.h"
#include "platform/movierecorder.h"

#include <QSemaphore>
#include <QThreadPool>

// The way of a camera's frames into one movie. Its pictures are made in a thread of their own, so that the
// one that grabs the frames goes on with the window's.
class MovieFeed
{
public:
    explicit MovieFeed(std::shared_ptr<MovieRecorder> movie);
    // Waits until the pictures are made, and tells the movie that there are no more.
    ~MovieFeed();
    MovieFeed(const MovieFeed &) = delete;
    MovieFeed &operator=(const MovieFeed &) = delete;

    // Whether the movie takes the frame. After a no it takes no later one either.
    bool wants(const CapturedFrame &frame) const { return m_movie->wants(frame.clockTime); }
    std::chrono::milliseconds lastFrameLimit() const { return m_movie->lastFrameLimit(); }
    // Gives the movie what is shown of the frame, but for a damaged one; frames in order, from one thread. A
    // JPEG is decoded at once, through `planes`, for the window's box too. While two pictures are to be made
    // it waits for the first.
    void add(const FramePtr &frame, FramePlanes *planes, const Framing &framing, const QSize &box);

private:
    const std::shared_ptr<MovieRecorder> m_movie;
    MoviePictures m_pictures;
    QSemaphore m_room;
    QThreadPool m_worker; // of one thread
};
