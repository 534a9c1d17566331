#include "platform/moviesound.h"

#include "platform/capturelog.h"
#include "platform/devicewatch.h"
#include "platform/moviepipeline.h"
#include "platform/soundformat.h"

#include <gst/app/gstappsrc.h>

#include <algorithm>

namespace
{

using namespace std::chrono_literals;

constexpr auto pauseBetweenTries = 1s;
constexpr std::chrono::milliseconds lastSoundLimit(qint64(mostSoundDelay * 1000));

SoundTrack::Writer writerTo(GstElement *source)
{
    return [source](const std::vector<float> &frames, qint64 first) {
        GstBuffer *sound = gst_buffer_new_memdup(frames.data(), frames.size() * sizeof(float));
        GST_BUFFER_PTS(sound) = gst_util_uint64_scale(guint64(first), GST_SECOND, soundRate);
        gst_app_src_push_buffer(GST_APP_SRC(source), sound);
    };
}

} // namespace

MovieSound::MovieSound(GstElement *sound, GstClockTime start, const CaptureDevice &microphone)
    : m_sound(sound), m_start(start), m_track(std::make_shared<SoundTrack>(soundDelay(), writerTo(sound))),
      m_wanted(microphone)
{
    open(microphone);
    m_first = m_present;
}

void MovieSound::open(const CaptureDevice &microphone)
{
    m_lastTry = MicrophoneState::Clock::now();
    m_microphone = microphone;
    m_track->breakOff();
    m_stream = std::make_unique<MicrophoneStream>(microphone, m_track, m_start);
    m_openings.push_back({microphone.device, m_stream->state()});
    const std::lock_guard<std::mutex> lock(m_presentMutex);
    m_present = m_stream->state();
}

// A microphone that stays away would else be told of every second.
void MovieSound::tell(const QString &loss)
{
    const QString line = m_microphone.name + QStringLiteral(": ") + loss;
    if (line != m_told)
        qCWarning(soundLog).noquote() << line;
    m_told = line;
}

void MovieSound::lookAfter()
{
    const std::lock_guard<std::mutex> lock(m_streamMutex);
    if (m_hasEnded)
        return;
    m_track->fill(sinceStart(gst_util_get_timestamp()));
    const std::vector<CaptureDevice> listed = DeviceWatch::instance().microphones();
    if (m_stream) {
        const QString why = loss(listed);
        if (why.isEmpty())
            return;
        tell(why);
        m_stream.reset();
        const std::lock_guard<std::mutex> presentLock(m_presentMutex);
        m_present.reset();
    }
    if (MicrophoneState::Clock::now() - m_lastTry < pauseBetweenTries)
        return;
    if (const CaptureDevice *microphone = next(listed))
        open(*microphone);
}

QString MovieSound::loss(const std::vector<CaptureDevice> &listed) const
{
    const QString why = m_stream->state()->loss();
    return why.isEmpty() && !findAgain(listed, m_microphone) ? QStringLiteral("It was unplugged.") : why;
}

// The movie's own microphone and the default one by turns. Null when neither is there.
const CaptureDevice *MovieSound::next(const std::vector<CaptureDevice> &listed)
{
    const CaptureDevice *own = findAgain(listed, m_wanted);
    const CaptureDevice *usual = defaultMicrophone(listed);
    if (m_isDefaultsTurn)
        std::swap(own, usual);
    m_isDefaultsTurn = !m_isDefaultsTurn;
    for (const CaptureDevice *microphone : {own, usual}) {
        if (microphone && !hangs(*microphone))
            return microphone;
    }
    return nullptr;
}

// Whether an earlier opening of it has not come back; each further one would cost one more thread.
bool MovieSound::hangs(const CaptureDevice &microphone)
{
    m_openings.erase(std::remove_if(m_openings.begin(), m_openings.end(),
                                    [](const Opening &opening) { return opening.state->hasAnswered(); }),
                     m_openings.end());
    return std::any_of(m_openings.begin(), m_openings.end(),
                       [&microphone](const Opening &opening) { return opening.device == microphone.device; });
}

void MovieSound::end(GstClockTime moment)
{
    const std::lock_guard<std::mutex> lock(m_streamMutex);
    m_hasEnded = true;
    const QString why = m_stream ? m_stream->state()->loss() : QString();
    if (!why.isEmpty())
        tell(why);
    m_track->endAt(sinceStart(moment));
    if (m_stream && m_stream->state()->isSoundDue())
        m_track->waitForLast(lastSoundLimit);
    m_stream.reset();
    m_track->close();
    gst_app_src_end_of_stream(GST_APP_SRC(m_sound));
}

double MovieSound::sinceStart(GstClockTime moment) const
{
    return double(GST_CLOCK_DIFF(m_start, moment)) / GST_SECOND;
}

std::optional<bool> MovieSound::isUsable() const
{
    const std::lock_guard<std::mutex> lock(m_presentMutex);
    return m_present ? m_present->isUsable() : false;
}
