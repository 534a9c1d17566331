#include "tests/support/smalldisk.h"
#include "util/files/photofile.h"
#include "widgets/picturefile.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <sys/resource.h>
#include <sys/stat.h>

// Photos read from disk: our own camera's, and whatever else may bear such a name.
class TestPictureFile : public QObject
{
    Q_OBJECT

    static QImage noise(const QSize &size)
    {
        QImage image(size, QImage::Format_RGB888);
        QRandomGenerator generator(1);
        std::generate_n(image.bits(), image.sizeInBytes(), [&] { return uchar(generator.generate()); });
        return image;
    }
    // Leaves the image as the camera writes it, and gives its bytes.
    QByteArray photograph(const QImage &image) const
    {
        QFile photo(m_path);
        photo.remove();
        return writePhoto(m_path, image) == 0 && photo.open(QIODevice::ReadOnly) ? photo.readAll()
                                                                                 : QByteArray();
    }
    void put(const QByteArray &content) const
    {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    const QTemporaryDir m_dir;
    const QString m_path = m_dir.filePath(QString::fromUtf8("photo صورة 📷.png"));

private slots:
    void readsWhatTheCameraWrites()
    {
        for (const QSize &size : {QSize(1, 1), QSize(641, 479)}) {
            const QImage image = noise(size);
            QVERIFY(!photograph(image).isEmpty());
            const QImage shown = image.convertToFormat(QImage::Format_RGB32);
            QCOMPARE(decodePhoto(m_path, 1 << 30), shown); // by the short way
            QCOMPARE(QImage(m_path).convertToFormat(QImage::Format_RGB888), image);
            const QSize box(260, 200);
            QCOMPARE(thumbnailOf(readPicture(m_path), box),
                     shown.scaled(box, Qt::KeepAspectRatio, Qt::FastTransformation));
        }
    }

    void writingFailsWithItsReason()
    {
        const QImage image = noise({640, 480});
        QCOMPARE(photograph(image).isEmpty(), false);
        QCOMPARE(writePhoto(m_path, noise({40, 30})), EEXIST);
        QCOMPARE(decodePhoto(m_path, 1 << 30).size(), image.size()); // what was there is kept
        QCOMPARE(writePhoto(m_dir.filePath("gone/photo.png"), image), ENOENT);
        QCOMPARE(writePhoto(m_path, QImage()), EINVAL);
        const SmallDisk disk(1);
        if (!disk.isMounted())
            QSKIP("a small file system takes root to mount");
        QCOMPARE(writePhoto(disk.path("photo.png"), noise({1000, 1000})), ENOSPC);
        QCOMPARE(QDir(disk.path("")).entryList(QDir::Files | QDir::Hidden), QStringList());
        QVERIFY(disk.makeReadOnly());
        QCOMPARE(writePhoto(disk.path("photo.png"), image), EROFS);
    }

    // Cut anywhere, or with any byte of its head changed, a photo is no picture or another one: never a
    // crash.
    void damagedPhotosGiveNothing()
    {
        const QByteArray whole = photograph(noise({40, 30}));
        for (int length = 0; length < whole.size() - 12; length += 7) {
            put(whole.left(length));
            QVERIFY2(decodePhoto(m_path, 1 << 20).isNull(), qPrintable(QString::number(length)));
        }
        for (int position = 0; position < 60; ++position) {
            QByteArray changed = whole;
            changed[position] = char(~changed[position]);
            put(changed);
            const QImage image = decodePhoto(m_path, 1 << 20);
            QVERIFY(image.isNull() || image.size() == QSize(40, 30));
        }
    }

    void otherFilesGiveAPictureOrNothing()
    {
        const QByteArray photo = photograph(noise({40, 30}));
        QVERIFY(noise({64, 48}).save(m_path, "JPEG"));
        QCOMPARE(readPicture(m_path).size(), QSize(64, 48));
        QVERIFY(QImage(30000, 30000, QImage::Format_Mono).save(m_path, "PNG") &&
                readPicture(m_path).isNull());
        for (const char *size : {"0000753000007530", "00001b5800001b58", "ffffffffffffffff"}) {
            put(QByteArray(photo).replace(16, 8, QByteArray::fromHex(size)));
            QVERIFY2(readPicture(m_path).isNull(), size);
        }
        for (const char *text : {"not a picture\n", ""}) {
            put(text);
            QVERIFY2(readPicture(m_path).isNull(), text);
        }
        // Two gigabytes of data, which are none for any reader.
        put(QByteArray(photo).replace(33, 4, QByteArray::fromHex("77359400")).replace(41, 2, "\x01\x01"));
        QVERIFY(QFile::resize(m_path, 2000001000) && readPicture(m_path).isNull());
        QVERIFY(QFile::remove(m_path) && readPicture(m_path).isNull());
        QVERIFY(mkfifo(QFile::encodeName(m_path), 0600) == 0 && readPicture(m_path).isNull());
        QVERIFY(QFile::remove(m_path) && QDir().mkdir(m_path) && readPicture(m_path).isNull());
        rusage use = {};
        QVERIFY(getrusage(RUSAGE_SELF, &use) == 0 && use.ru_maxrss < 1 << 20); // under a gigabyte at any time
    }
};

QTEST_MAIN(TestPictureFile)
#include "tst_picturefile.moc"
