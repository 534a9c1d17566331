#include "tests/support/testdevices.h"

#include <QFile>
#include <QSaveFile>

namespace
{

QString controlFile()
{
    return qEnvironmentVariable("XDG_RUNTIME_DIR") + "/orvane-test-devices.ini";
}

} // namespace

TestDevices::Section &TestDevices::Section::set(const QString &key, const QString &value)
{
    m_values[key] = value;
    return *this;
}

TestDevices::~TestDevices()
{
    QFile::remove(controlFile());
}

TestDevices::Section &TestDevices::camera(const QString &id)
{
    return section("camera", id);
}

TestDevices::Section &TestDevices::microphone(const QString &id)
{
    return section("microphone", id);
}

TestDevices::Section &TestDevices::provider(const QString &mark)
{
    return section("provider", mark);
}

TestDevices::Section &TestDevices::coder(const QString &element)
{
    return section("coder", element);
}

TestDevices::Section &TestDevices::section(const QString &kind, const QString &id)
{
    Section &section = m_sections[id];
    section.m_group = kind + ' ' + id;
    return section;
}

void TestDevices::write() const
{
    QByteArray text;
    for (const Section &section : m_sections) {
        if (!section.m_plugged)
            continue;
        text += '[' + section.m_group.toUtf8() + "]\n";
        for (auto value = section.m_values.begin(); value != section.m_values.end(); ++value)
            text += value.key().toUtf8() + '=' + value.value().toUtf8() + '\n';
    }
    QSaveFile file(controlFile());
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
        qFatal("the control file cannot be written: %s", qUtf8Printable(file.errorString()));
}

void TestDevices::pull(const QString &id)
{
    m_sections[id].m_plugged = false;
    write();
}

void TestDevices::plug(const QString &id)
{
    m_sections[id].m_plugged = true;
    write();
}

void TestDevices::setFault(const QString &id, const QString &word)
{
    m_sections[id].fault(word);
    write();
}
