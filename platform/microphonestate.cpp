#include "platform/microphonestate.h"

#include "platform/soundformat.h"

namespace
{

using namespace std::chrono_literals;

// Some microphones refuse only when their sound is asked for, a moment after they were opened.
constexpr auto refusalLimit = 500ms;
constexpr auto usualOpening = 1500ms;
constexpr auto silenceLimit = 2s;
constexpr auto openingLimit = 5s;

} // namespace

void MicrophoneState::noteAnswer(bool isOpen)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_hasAnswered = true;
    if (isOpen)
        m_openedAt = Clock::now();
    else if (m_failure.isEmpty())
        m_failure = QStringLiteral("It cannot be opened and does not say why.");
}

void MicrophoneState::noteSound()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_lastSound = Clock::now();
}

void MicrophoneState::fail(const QString &why)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_failure.isEmpty())
        m_failure = why;
}

std::optional<bool> MicrophoneState::isUsable() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_failure.isEmpty())
        return false;
    if (m_lastSound || (m_openedAt && Clock::now() - *m_openedAt > refusalLimit))
        return true;
    return {};
}

bool MicrophoneState::isSoundDue() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const Clock::time_point now = Clock::now();
    if (!m_hasAnswered)
        return now - m_startedAt < usualOpening;
    return m_failure.isEmpty() && now - m_lastSound.value_or(m_openedAt.value_or(m_startedAt)) <
                                      std::chrono::duration<double>(mostSoundDelay);
}

bool MicrophoneState::hasAnswered() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_hasAnswered;
}

std::optional<bool> MicrophoneState::wasUsable() const
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_lastSound)
            return true;
    }
    return isUsable();
}

QString MicrophoneState::loss() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_failure.isEmpty())
        return m_failure;
    const auto now = Clock::now();
    if (m_lastSound && now - *m_lastSound > silenceLimit)
        return QStringLiteral("It has given no sound for two seconds.");
    if (!m_lastSound && m_openedAt && now - *m_openedAt > silenceLimit)
        return QStringLiteral("It was opened and gives no sound.");
    if (!m_lastSound && !m_openedAt && now - m_startedAt > openingLimit)
        return QStringLiteral("It does not answer to being opened.");
    return {};
}
