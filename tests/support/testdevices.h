// Writes the control file of the test devices: which cameras and microphones this test has and how they
// behave.
//
//     TestDevices devices;
//     devices.camera("cam1").name("Board Cam").formats("YUY2 1920x1080 30;JPEG 3264x2448
//     15").content("counter"); devices.microphone("mic1").sound("beep"); devices.write();
//     devices.pull("cam1");
#pragma once

#include <QMap>
#include <QString>

class TestDevices
{
public:
    // One device's section; the words are those of the control file (see tests/plugins/controlfile.h).
    class Section
    {
    public:
        Section &set(const QString &key, const QString &value);
        Section &name(const QString &name) { return set("name", name); }
        Section &provider(const QString &mark) { return set("provider", mark); }
        Section &formats(const QString &list) { return set("formats", list); }
        Section &content(const QString &word) { return set("content", word); }
        Section &sound(const QString &word) { return set("sound", word); }
        Section &clock(int millionths) { return set("clock", QString::number(millionths)); }
        Section &bursts(int milliseconds) { return set("bursts", QString::number(milliseconds)); }
        Section &fault(const QString &word) { return set("fault", word); }
        Section &opensAfter(int milliseconds) { return set("opens-after", QString::number(milliseconds)); }
        Section &order(const QString &word) { return set("order", word); }
        Section &damaged(const QString &which) { return set("damaged", which); }
        Section &property(const QString &key, const QString &value) { return set("prop." + key, value); }

    private:
        friend class TestDevices;
        QString m_group;
        QMap<QString, QString> m_values;
        bool m_plugged = true;
    };

    TestDevices() = default;
    // Takes all devices away again.
    ~TestDevices();
    TestDevices(const TestDevices &) = delete;
    TestDevices &operator=(const TestDevices &) = delete;

    // The section of that name, made when it is new. Nothing happens before write().
    Section &camera(const QString &id);
    Section &microphone(const QString &id);
    Section &provider(const QString &mark);
    Section &coder(const QString &element);

    // Replaces the file in one step; ends the test program when it cannot. The devices follow within some 20
    // ms.
    void write() const;

    // These write at once; the device must be known.
    void pull(const QString &id);
    void plug(const QString &id);
    void setFault(const QString &id, const QString &word);

private:
    Section &section(const QString &kind, const QString &id);

    QMap<QString, Section> m_sections;
};
