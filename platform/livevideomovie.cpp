// The movies of a LiveVideoData.

#include "platform/capturelog.h"
#include "platform/livevideodata.h"
#include "platform/moviepictures.h"
#include "platform/movierecorder.h"
#include "util/files/alivewait.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace
{

using namespace std::chrono_literals;

constexpr auto startWait = 5s;
constexpr auto microphoneWait = 2s;
constexpr auto fileWait = 450ms;
constexpr auto lastFileWait = 30s;
constexpr double longestSoundGap = 2; // seconds

enum class Start { Runs, NoPicture, Failed };

// Of that frame, or of the next whole one; null when none comes.
FramePtr wholePicture(const FramePtr &first, const NewestFrame &frames, const Framing &framing,
                      const GstVideoInfo &info)
{
    FramePlanes planes;
    MoviePictures pictures;
    FramePtr picture;
    frames.tryFrom(first, [&](const FramePtr &frame) {
        picture = pictures.make(frame, &planes, framing, info);
        return picture != nullptr;
    });
    return picture;
}

} // namespace

void LiveVideoData::Record(const QString &path)
{
    if (m_movie || m_isRecordCalled || !created || m_isLost || !m_grabThread)
        return;
    m_isRecordCalled = true;
    const QPointer<LiveVideoData> self(this);
    startMovie(path);
    if (self)
        m_isRecordCalled = false;
}

void LiveVideoData::startMovie(const QString &path)
{
    const QPointer<LiveVideoData> self(this);
    m_lacksPicture = false;
    const std::vector<CaptureDevice> microphones = awaitMicrophones();
    const CaptureDevice *microphone = defaultMicrophone(microphones);
    const FramePtr atPress = self && microphone ? awaitFrame() : FramePtr();
    if (!atPress)
        return;
    MovieSettings settings;
    settings.path = path;
    settings.picture = MoviePictures::infoOf(m_framing.shownSize(atPress->size()));
    if (m_mode.rate.numerator > 0)
        settings.framesPerSecond = qMax(1, qRound(m_mode.rate.value()));
    settings.microphone = *microphone;
    const auto movie = std::make_shared<MovieRecorder>(settings);
    m_startingMovie = movie;
    m_grabThread->setMovie(movie);
    // The newest of now: what comes after it goes to the movie already.
    const FramePtr newest = m_grabThread->newest();
    const FramePtr first = newest ? newest : atPress;
    const auto start = [movie, first, framing = m_framing, frames = m_grabThread->frames()] {
        const FramePtr picture = wholePicture(first, *frames, framing, movie->settings().picture);
        return !picture ? Start::NoPicture : movie->start(picture) ? Start::Runs : Start::Failed;
    };
    const auto outcome = doAside(start, startWait);
    if (!self || m_startingMovie != movie) {
        movie->discard(); // ended before it had begun
        return;
    }
    m_startingMovie.reset();
    if (outcome == Start::Runs) {
        m_movie = movie;
        return;
    }
    movie->discard();
    applyResolution();
    m_lacksPicture = outcome == Start::NoPicture;
    if (m_lacksPicture)
        qCWarning(movieLog).noquote() << "No movie is begun: no whole picture has come for a second.";
    if (!outcome)
        qCWarning(movieLog).noquote().nospace()
            << path << ": The movie is given up, since the disk has not opened its file within five seconds.";
}

bool LiveVideoData::IsRecording() const
{
    return m_movie != nullptr;
}

void LiveVideoData::RecordStop()
{
    endMovie(MovieEnd::Asked);
}

void LiveVideoData::RecordMovie()
{
    const MovieEnd why = m_movie ? m_movie->end() : MovieEnd::None;
    if (why == MovieEnd::None)
        return;
    const QPointer<LiveVideoData> self(this);
    endMovie(why);
    if (self)
        emit devicestop();
}

void LiveVideoData::endMovie(MovieEnd why)
{
    const std::shared_ptr<MovieRecorder> movie = stopMovie();
    applyResolution();
    tellMovieEnd(movie, why);
}

// Begins to finish the movie that runs, and tells nobody yet. Null when none runs. One that is being started
// is dropped by Record().
std::shared_ptr<MovieRecorder> LiveVideoData::stopMovie()
{
    m_startingMovie.reset();
    std::shared_ptr<MovieRecorder> movie = std::exchange(m_movie, nullptr);
    if (!movie)
        return movie;
    m_hadSoundHole = movie->longestSoundGap() > longestSoundGap;
    if (const std::optional<bool> couldBeOpened = movie->couldOpenMicrophone())
        m_deafMicrophone = *couldBeOpened ? nullptr : movie->settings().microphone.device;
    movie->finish();
    m_unfinished.push_back(movie);
    m_fileWatch.start();
    return movie;
}

// Does nothing for no movie.
void LiveVideoData::tellMovieEnd(const std::shared_ptr<MovieRecorder> &movie, MovieEnd why)
{
    if (!movie)
        return;
    const QPointer<LiveVideoData> self(this);
    if (m_listener)
        m_listener->movieHasEnded(why);
    static_cast<void>(waitAlive([&movie] { return movie->isFinished(); }, fileWait));
    if (self)
        lookAtMovieFiles();
}

void LiveVideoData::lookAtMovieFiles()
{
    if (m_unfinished.empty())
        return;
    const auto finished = std::stable_partition(m_unfinished.begin(), m_unfinished.end(),
                                                [](const auto &movie) { return !movie->isFinished(); });
    // Of the others too: a disk that hangs may let none of them end.
    auto broken = std::count_if(m_unfinished.begin(), m_unfinished.end(),
                                [](const auto &movie) { return movie->takeBreak(); });
    m_unfinished.erase(finished, m_unfinished.end());
    const QPointer<LiveVideoData> self(this);
    for (; self && m_listener && broken > 0; --broken)
        m_listener->movieFileIsBroken();
    if (!self || !m_unfinished.empty())
        return;
    m_fileWatch.stop();
    if (m_listener)
        m_listener->movieFilesAreFinished();
}

bool LiveVideoData::isFinishingMovie()
{
    return std::any_of(m_unfinished.begin(), m_unfinished.end(),
                       [](const auto &movie) { return !movie->isFinished(); });
}

QStringList LiveVideoData::unfinishedMovies() const
{
    QStringList paths;
    for (const auto &movie : m_unfinished) {
        if (!movie->isFinished())
            paths << movie->settings().path;
    }
    for (const auto &movie : {m_movie, m_startingMovie}) {
        if (movie)
            paths << movie->settings().path;
    }
    return paths;
}

void LiveVideoData::finishMovies()
{
    static_cast<void>(stopMovie());
    for (const auto &movie : m_unfinished)
        movie->waitForFile(lastFileWait);
}

bool LiveVideoData::IsValidAudioDevice()
{
    const QPointer<LiveVideoData> self(this);
    if (m_movie && !awaitMicrophone())
        return false;
    if (!self)
        return false;
    const std::vector<CaptureDevice> microphones = awaitMicrophones();
    const CaptureDevice *microphone = defaultMicrophone(microphones);
    return self && microphone && microphone->device != m_deafMicrophone;
}

// Whether the microphone of the movie that runs could be opened.
bool LiveVideoData::awaitMicrophone()
{
    const QPointer<LiveVideoData> self(this);
    const std::shared_ptr<MovieRecorder> movie = m_movie;
    std::optional<bool> isUsable;
    const auto isKnown = [&] {
        isUsable = movie->hasMicrophone();
        return isUsable.has_value();
    };
    static_cast<void>(waitAlive(isKnown, microphoneWait));
    if (self)
        m_deafMicrophone = isUsable.value_or(false) ? nullptr : movie->settings().microphone.device;
    return isUsable.value_or(false);
}
