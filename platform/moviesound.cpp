#include "platform/moviesound.h"

#include "platform/capturelog.h"
#include "platform/devicewatch.h"

#include <algorithm>

namespace
{

using namespace std::chrono_literals;

constexpr auto pauseBetweenTries = 1s;

} // namespace

MovieSound::MovieSound(GstElement *pipeline, GstElement *mixer, const CaptureDevice &microphone)
    : m_pipeline(pipeline), m_mixer(mixer), m_wanted(microphone)
{
    open(microphone);
    m_first = m_present;
}

void MovieSound::open(const CaptureDevice &microphone)
{
    m_lastTry = MicrophoneState::Clock::now();
    m_microphone = microphone;
    m_branch = std::make_unique<MicrophoneBranch>(m_pipeline, m_mixer, microphone.device.get(), m_gaps);
    m_openings.push_back({microphone.device, m_branch->state()});
    const std::lock_guard<std::mutex> lock(m_presentMutex);
    m_present = m_branch->state();
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
    const std::lock_guard<std::mutex> lock(m_branchMutex);
    if (m_hasEnded)
        return;
    const std::vector<CaptureDevice> listed = DeviceWatch::instance().microphones();
    if (m_branch) {
        const QString why = loss(listed);
        if (why.isEmpty())
            return;
        tell(why);
        m_branch.reset();
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
    const QString why = m_branch->state()->loss();
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

// Later a microphone's sound may end only because the movie's does.
void MovieSound::end()
{
    const std::lock_guard<std::mutex> lock(m_branchMutex);
    m_hasEnded = true;
    const QString why = m_branch ? m_branch->state()->loss() : QString();
    if (!why.isEmpty())
        tell(why);
}

void MovieSound::close()
{
    const std::lock_guard<std::mutex> lock(m_branchMutex);
    m_branch.reset();
}

std::optional<bool> MovieSound::isUsable() const
{
    const std::lock_guard<std::mutex> lock(m_presentMutex);
    return m_present ? m_present->isUsable() : false;
}
