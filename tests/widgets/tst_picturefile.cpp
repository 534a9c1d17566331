#include "platform/pngfile.h"
#include "widgets/photodecoder.h"
#include "widgets/picturefile.h"

#include <QDataStream>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/resource.h>
#include <sys/stat.h>

class TestPictureFile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { gst_init(nullptr, nullptr); }
    void readsWhatTheCameraWrites();
    void damagedPhotosGiveNothing();
    void otherFilesGiveAPictureOrNothing_data();
    void otherFilesGiveAPictureOrNothing();

private:
    static QImage gradient(const QSize &size);
    QString writePhoto(const QImage &image);
    static void put(const QString &path, const QByteArray &content);
    static QByteArray encoded(const QImage &image, const char *format);
    static QByteArray claiming(quint32 width, quint32 height);
    static QByteArray bigEndian(quint32 number);

    QTemporaryDir m_dir;
};

QImage TestPictureFile::gradient(const QSize &size)
{
    QImage image(size, QImage::Format_RGB888);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixelColor(x, y, QColor((x * 7) % 256, (y * 5) % 256, (x * y) % 256));
    }
    return image;
}

QString TestPictureFile::writePhoto(const QImage &image)
{
    GstVideoInfo info;
    gst_video_info_set_format(&info, GST_VIDEO_FORMAT_RGB, guint(image.width()), guint(image.height()));
    GstBuffer *buffer = gst_buffer_new_memdup(image.constBits(), gsize(image.sizeInBytes()));
    const QString path = m_dir.filePath("photo.png");
    QFile::remove(path);
    const bool written = writePng(path, info, buffer);
    gst_buffer_unref(buffer);
    return written ? path : QString();
}

void TestPictureFile::put(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray TestPictureFile::encoded(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format);
    return bytes;
}

// The beginning of a PNG with a size of its own saying.
QByteArray TestPictureFile::claiming(quint32 width, quint32 height)
{
    QImage one(1, 1, QImage::Format_RGB888);
    one.fill(Qt::red);
    QByteArray png = encoded(one, "PNG");
    png.replace(16, 4, bigEndian(width));
    png.replace(20, 4, bigEndian(height));
    return png;
}

QByteArray TestPictureFile::bigEndian(quint32 number)
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << number;
    return bytes;
}

void TestPictureFile::readsWhatTheCameraWrites()
{
    for (const QSize &size : {QSize(1, 1), QSize(3, 5), QSize(641, 479)}) {
        const QImage image = gradient(size);
        const QString path = writePhoto(image);
        QCOMPARE(decodePhoto(path, 1LL << 30), image); // by the short way
        QCOMPARE(QImage(path).convertToFormat(QImage::Format_RGB888), image);
        QVERIFY(decodePhoto(path, size.width() * size.height() - 1).isNull());
        const QSize box(260, 200);
        QCOMPARE(readThumbnail(path, box), image.scaled(box, Qt::KeepAspectRatio, Qt::FastTransformation));
    }
}

// Cut anywhere, or with any byte of its head changed, a photo is no picture or another one: never a crash.
void TestPictureFile::damagedPhotosGiveNothing()
{
    const QString path = writePhoto(gradient({40, 30}));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    const QString damaged = m_dir.filePath("damaged.png");
    for (int length = 0; length < whole.size() - 12; length += 7) {
        put(damaged, whole.left(length));
        QVERIFY2(decodePhoto(damaged, 1 << 20).isNull(), qPrintable(QString::number(length)));
    }
    for (int position = 0; position < 60; ++position) {
        QByteArray changed = whole;
        changed[position] = char(~changed[position]);
        put(damaged, changed);
        const QImage image = decodePhoto(damaged, 1 << 20);
        QVERIFY(image.isNull() || image.size() == QSize(40, 30));
    }
}

void TestPictureFile::otherFilesGiveAPictureOrNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QSize>("size"); // empty: no picture
    const auto row = [](const char *name, const QByteArray &content, const QSize &size = QSize()) {
        QTest::newRow(name) << content << "file" << size;
    };
    row("jpeg named png", encoded(gradient({64, 48}), "JPEG"), {64, 48});
    row("text", "not a picture\n");
    row("empty", "");
    row("30000x30000", encoded(QImage(30000, 30000, QImage::Format_Mono), "PNG"));
    row("claims 30000x30000", claiming(30000, 30000));
    row("largest", claiming(0xffffffff, 0xffffffff));
    row("7000x7000 without data", claiming(7000, 7000));
    for (const char *kind : {"folder", "pipe", "missing", "2 GB of data"})
        QTest::newRow(kind) << QByteArray() << kind << QSize();
}

void TestPictureFile::otherFilesGiveAPictureOrNothing()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, kind);
    QFETCH(QSize, size);
    QTemporaryDir dir;
    const QString path = dir.filePath(QString::fromUtf8("photo \u0635\u0648\u0631\u0629 \U0001F4F7.png"));
    constexpr quint32 length = 2000000000;
    if (kind == "2 GB of data") {
        QFile photo(writePhoto(gradient({40, 30})));
        QVERIFY(photo.open(QIODevice::ReadOnly));
        content = photo.readAll();
        content.replace(33, 4, bigEndian(length));
        content.replace(41, 2, "\x01\x01"); // no picture for any reader
    }
    if (kind == "folder")
        QVERIFY(QDir().mkpath(path));
    else if (kind == "pipe")
        QCOMPARE(mkfifo(path.toUtf8().constData(), 0600), 0);
    else if (kind != "missing")
        put(path, content);
    if (kind == "2 GB of data")
        QVERIFY(QFile::resize(path, length + 1000LL));
    const QImage image = readPicture(path);
    QCOMPARE(image.isNull(), size.isEmpty());
    if (!size.isEmpty())
        QCOMPARE(image.size(), size);
    rusage use = {};
    QVERIFY(getrusage(RUSAGE_SELF, &use) == 0 && use.ru_maxrss < 1 << 20); // under a gigabyte at any time
}

QTEST_MAIN(TestPictureFile)
#include "tst_picturefile.moc"
