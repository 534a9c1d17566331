#include "tests/support/modalanswer.h"
#include "widgets/picturelistview.h"

#include <QScrollBar>
#include <QScroller>
#include <QSignalSpy>
#include <QTest>

class TestPictureListView : public QObject
{
    Q_OBJECT

    QString addPhoto(const QString &name, const QColor &colour, const QSize &size = {64, 48}) const
    {
        QImage image(size, QImage::Format_RGB888);
        image.fill(colour);
        image.save(m_dir.filePath(name));
        return name;
    }
    static QColor hue(int i) { return QColor::fromHsv(i * 30, 255, 255).rgb(); }
    static QColor colourOf(const QListWidgetItem *item)
    {
        const QImage image = item->icon().pixmap(1000, 1000).toImage();
        return image.pixelColor(image.rect().center());
    }
    static void click(PictureListView &list, const QVector<int> &rows)
    {
        for (const int row : rows) {
            list.scrollToItem(list.item(row));
            const QPoint place = list.visualItemRect(list.item(row)).center();
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
        }
    }
    void show(PictureListView &list, const QStringList &names) const
    {
        list.resize(1000, 300);
        list.setFolder(m_dir.path());
        list.AddPicture(names);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
    }

    const QTemporaryDir m_dir;
    QStringList m_ten;

private slots:
    void initTestCase()
    {
        for (int i = 0; i < 10; ++i)
            m_ten << addPhoto(QString("photo%1.png").arg(i), hue(i));
    }

    void itemsStandAtOnceAndFill()
    {
        // The slowest stands first: its thumbnail comes late, its item does not.
        const QStringList names = QStringList{addPhoto("photoL.png", Qt::red, {4000, 3000})} + m_ten;
        PictureListView list;
        list.resize(1000, 300);
        list.setFolder(m_dir.path());
        list.AddPicture(names);
        list.AddPicture(m_ten.first()); // is there already
        QCOMPARE(list.count(), 11);
        QCOMPARE(colourOf(list.item(0)), QColor(Qt::lightGray));
        for (int row = 0; row < list.count(); ++row) {
            QTRY_COMPARE(colourOf(list.item(row)), row == 0 ? QColor(Qt::red) : hue(row - 1));
            QCOMPARE(list.item(row)->text(), names.at(row));
            QCOMPARE(list.item(row)->icon().actualSize({1000, 1000}), QSize(260, 195));
        }
    }

    void swipeScrollsAndATapChooses()
    {
        PictureListView list;
        show(list, m_ten);
        QScrollBar *place = list.horizontalScrollBar();
        QVERIFY(place->maximum() > 500);
        QWidget *strip = list.viewport();
        QWindow *window = list.windowHandle();
        QTouchDevice *screen = QTest::createTouchDevice();
        const auto touch = [=] { return QTest::touchEvent(window, screen); };
        for (const QString hand : {"mouse", "mouse held first", "finger"}) {
            const bool isFinger = hand == "finger";
            place->setValue(0);
            QPoint at(700, 100);
            isFinger ? void(touch().press(0, at, window)) : QTest::mousePress(window, Qt::LeftButton, {}, at);
            if (hand == "mouse held first") // for longer than a press is kept back
                QTest::qWait(400);
            while (at.x() > 500) {
                at.rx() -= 20;
                QTest::qWait(10);
                isFinger ? void(touch().move(0, at, window)) : QTest::mouseMove(window, at);
            }
            QTest::qWait(10);
            isFinger ? void(touch().release(0, at, window))
                     : QTest::mouseRelease(window, Qt::LeftButton, {}, at);
            const int atRelease = place->value();
            QVERIFY2(atRelease > 100, qPrintable(QString::number(atRelease)));
            QTRY_VERIFY(place->value() > atRelease + 20); // runs on
            QCOMPARE(list.selectionList(), QStringList());
            QTRY_COMPARE(QScroller::scroller(strip)->state(), QScroller::Inactive);
            QCOMPARE(list.selectionList(), QStringList());
        }
        click(list, {4, 5});
        QCOMPARE(list.selectionList(), QStringList({m_ten[4], m_ten[5]}));
        click(list, {4});
        QCOMPARE(list.selectionList(), QStringList(m_ten[5]));
        list.setMovieMode(true);
        click(list, {1});
        QCOMPARE(list.selectedItems().size(), 1);
    }

    void itemsMayVanishWhileTheyAreRead()
    {
        PictureListView list;
        show(list, {addPhoto("photoA.png", Qt::red, {4000, 3000})});
        list.Reset();
        show(list, {"photo1.png"});
        QTRY_COMPARE(colourOf(list.item(0)), hue(1));
        list.AddPicture(m_ten);
        list.clear();
        list.AddPicture("photoA.png");
        QTRY_COMPARE(colourOf(list.item(0)), QColor(Qt::red));
    }

    void keepsTheOrderOfChoosingAndUndoesTheTenth()
    {
        PictureListView list;
        show(list, m_ten);
        QSignalSpy changes(&list, &PictureListView::selectedPhoto);
        click(list, {4, 1, 7, 0, 9, 7, 9});
        QCOMPARE(list.selectionList(), (QStringList{"photo4.png", "photo1.png", "photo0.png"}));
        QCOMPARE(list.currentName(), QString("photo0.png"));
        click(list, {3, 9, 8, 7, 6, 5});
        const QStringList nine = list.selectionList();
        QCOMPARE(nine.size(), 9);
        const ModalAnswer answer;
        click(list, {2});
        QCOMPARE(answer.text(), QString("You can not select 10 or more."));
        QCOMPARE(list.selectionList(), nine);
        QVERIFY(!list.item(2)->isSelected());
        QCOMPARE(changes.count(), 14);
    }

    void aMovieIsShownByItsNameAndChosenByItsPreview()
    {
        PictureListView list;
        list.setMovieMode(true);
        show(list, {addPhoto("movie1tmp.png", Qt::red), addPhoto("movie2tmp.png", Qt::red)});
        QCOMPARE(list.item(0)->text(), QString("movie1.mov"));
        click(list, {0, 1});
        QCOMPARE(list.selectionList(), QStringList{"movie2tmp.png"});
    }
};

QTEST_MAIN(TestPictureListView)
#include "tst_picturelistview.moc"
