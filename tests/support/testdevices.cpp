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
    values_[key] = value;
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

TestDevices::Section &TestDevices::section(const QString &kind, const QString &id)
{
    Section &section = sections_[id];
    section.group_ = kind + ' ' + id;
    return section;
}

void TestDevices::write() const
{
    QByteArray text;
    for (const Section &section : sections_) {
        if (!section.plugged_)
            continue;
        text += '[' + section.group_.toUtf8() + "]\n";
        for (auto value = section.values_.begin(); value != section.values_.end(); ++value)
            text += value.key().toUtf8() + '=' + value.value().toUtf8() + '\n';
    }
    QSaveFile file(controlFile());
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
        qFatal("the control file cannot be written: %s", qUtf8Printable(file.errorString()));
}

void TestDevices::pull(const QString &id)
{
    sections_[id].plugged_ = false;
    write();
}

void TestDevices::plug(const QString &id)
{
    sections_[id].plugged_ = true;
    write();
}

void TestDevices::setFault(const QString &id, const QString &word)
{
    sections_[id].fault(word);
    write();
}
