#include "tests/support/modalanswer.h"
#include "widgets/picturelistview.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class TestPictureListView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void itemsStandAtOnceAndFill();
    void whatCannotBeShownIsGrey();
    void resetForgetsWhatIsStillBeingRead();
    void keepsTheOrderOfChoosingAndUndoesTheTenth();
    void aMovieIsShownByItsNameAndChosenByItsPreview();
    void choosingFromOutside();

private:
    QString addPhoto(const QString &name, const QColor &colour, const QSize &size = {64, 48});
    static QColor hue(int i) { return QColor::fromHsv(i * 30, 255, 255).rgb(); }
    static QColor colourOf(const QListWidgetItem *item);
    static void click(PictureListView &list, const QVector<int> &rows);
    void show(PictureListView &list, const QStringList &names) const;

    QScopedPointer<QTemporaryDir> m_dir;
    QStringList m_ten;
};

void TestPictureListView::init()
{
    m_dir.reset(new QTemporaryDir);
    m_ten.clear();
    for (int i = 0; i < 10; ++i)
        m_ten << addPhoto(QString("photo%1.png").arg(i), hue(i));
}

QString TestPictureListView::addPhoto(const QString &name, const QColor &colour, const QSize &size)
{
    QImage image(size, QImage::Format_RGB888);
    image.fill(colour);
    image.save(m_dir->filePath(name));
    return name;
}

QColor TestPictureListView::colourOf(const QListWidgetItem *item)
{
    const QImage image = item->icon().pixmap(1000, 1000).toImage();
    return image.pixelColor(image.rect().center());
}

void TestPictureListView::click(PictureListView &list, const QVector<int> &rows)
{
    for (const int row : rows) {
        list.scrollToItem(list.item(row));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
    }
}

void TestPictureListView::show(PictureListView &list, const QStringList &names) const
{
    list.resize(1000, 120);
    list.setFolder(m_dir->path());
    list.AddPicture(names);
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list));
}

void TestPictureListView::itemsStandAtOnceAndFill()
{
    PictureListView list;
    list.resize(1000, 300);
    list.setFolder(m_dir->path());
    list.show();
    // The slowest stands first: its thumbnail comes late, its item does not.
    const QString large = addPhoto("photoA.png", Qt::red, {4000, 3000});
    const QStringList names = QStringList{large} + m_ten;
    list.AddPicture(names);
    list.AddPicture(m_ten.first());
    QCOMPARE(list.nameList(), names);
    QCOMPARE(list.items().size(), 11);
    QCOMPARE(colourOf(list.item(0)), QColor(Qt::lightGray));

    QTRY_COMPARE(colourOf(list.item(0)), QColor(Qt::red));
    for (int i = 0; i < m_ten.size(); ++i) {
        const QListWidgetItem *item = list.item(i + 1);
        QTRY_COMPARE(colourOf(item), hue(i));
        QCOMPARE(item->text(), m_ten.at(i));
        QCOMPARE(item->sizeHint(), QSize(300, 260));
        QCOMPARE(item->icon().actualSize({1000, 1000}), QSize(260, 195));
    }
    QVERIFY(list.viewport()->rect().intersects(list.visualItemRect(list.item(10))));

    list.Release();
    list.resize(1000, 128);
    list.setPictSize(QSize(0, 0));
    QVERIFY(list.isHidden());
    list.AddPictureWithSelect("photo1.png");
    QCOMPARE(list.iconSize(), QSize(109, 84));
    QCOMPARE(list.selectionList(), QStringList{"photo1.png"});
    QVERIFY(list.selectedItems().isEmpty());
}

void TestPictureListView::whatCannotBeShownIsGrey()
{
    QFile text(m_dir->filePath("photoX.png"));
    QVERIFY(text.open(QIODevice::WriteOnly));
    text.write("no picture");
    text.close();
    QVERIFY(QDir(m_dir->path()).mkdir("photoY.png"));
    PictureListView list;
    list.resize(1000, 300);
    list.setFolder(m_dir->path());
    list.AddPicture({"photoX.png", "photoY.png", "photoGone.png", m_ten.first()});
    QTRY_COMPARE(colourOf(list.item(3)), hue(0));
    for (int row = 0; row < 3; ++row)
        QCOMPARE(colourOf(list.item(row)), QColor(Qt::lightGray));
    QCOMPARE(list.item(0)->icon().actualSize({1000, 1000}), QSize(260, 195));
}

void TestPictureListView::resetForgetsWhatIsStillBeingRead()
{
    QStringList large;
    for (int i = 0; i < 4; ++i)
        large << addPhoto(QString("photoL%1.png").arg(i), Qt::red, {4000, 3000});
    QTemporaryDir other;
    QImage blue(64, 48, QImage::Format_RGB888);
    blue.fill(Qt::blue);
    for (const QString &name : qAsConst(large))
        blue.save(other.filePath(name));
    PictureListView list;
    show(list, large);
    list.Reset();
    QVERIFY(list.folder().isEmpty() && list.nameList().isEmpty());
    list.setFolder(other.path());
    list.AddPicture(large);
    const auto isAnyRed = [&list] {
        bool isRed = false;
        for (int row = 0; row < list.count(); ++row)
            isRed = isRed || colourOf(list.item(row)) == QColor(Qt::red);
        return isRed;
    };
    QVERIFY(!QTest::qWaitFor(isAnyRed, 600));
    QTRY_COMPARE(colourOf(list.item(3)), QColor(Qt::blue));
    list.setFolder(m_dir->path());
    list.AddPicture("photo1.png");
    list.clear(); // items that vanish under the reader
    list.AddPicture("photo2.png");
    QTRY_COMPARE(colourOf(list.item(0)), hue(2));
    list.AddPicture(m_ten.mid(3)); // destroyed while reading
}

void TestPictureListView::keepsTheOrderOfChoosingAndUndoesTheTenth()
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
    {
        const ModalAnswer answer;
        click(list, {2});
        QCOMPARE(answer.text(), QString("You can not select 10 or more."));
    }
    QCOMPARE(list.selectionList(), nine);
    QVERIFY(!list.item(2)->isSelected());
    QCOMPARE(changes.count(), 14);
    // Everything at once, as by the keyboard: the first nine of the strip.
    list.clearSelection();
    const ModalAnswer answer;
    list.selectAll();
    QCOMPARE(list.selectionList(), m_ten.mid(0, 9));
    QCOMPARE(list.selectedItems().size(), 9);
}

void TestPictureListView::aMovieIsShownByItsNameAndChosenByItsPreview()
{
    PictureListView list;
    list.setMovieMode(true);
    show(list, {addPhoto("movie1tmp.png", Qt::red), addPhoto("movie2tmp.png", Qt::red)});
    QCOMPARE(list.item(0)->text(), QString("movie1.mov"));
    click(list, {0, 1});
    QCOMPARE(list.selectionList(), QStringList{"movie2tmp.png"});
    QCOMPARE(list.currentName(), QString("movie2tmp.png"));
    list.clearSelection();
    QVERIFY(list.selectionList().isEmpty() && list.currentName().isEmpty());
}

void TestPictureListView::choosingFromOutside()
{
    PictureListView list;
    for (const QString &name : m_ten.mid(0, 9) + m_ten.mid(0, 1))
        list.OnSelect(name);
    QCOMPARE(list.selectionList(), m_ten.mid(0, 9));
    const ModalAnswer answer;
    list.OnSelect(m_ten.last());
    QCOMPARE(answer.text(), QString("You can not select 10 or more."));
    QCOMPARE(list.currentName(), m_ten.at(8));
    list.UnSelect(m_ten.at(3));
    list.OnSelect(m_ten.last());
    QCOMPARE(list.selectionList().last(), m_ten.last());
    list.UnSelect(m_ten.last());
    list.setMovieMode(true);
    list.OnSelect("movie7.mov");
    QCOMPARE(list.selectionList(), QStringList{"movie7tmp.png"});
}

QTEST_MAIN(TestPictureListView)
#include "tst_picturelistview.moc"
