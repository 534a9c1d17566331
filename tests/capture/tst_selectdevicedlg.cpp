#include "capture/selectdevicedlg.h"

#include <QComboBox>
#include <QPushButton>
#include <QtTest>

class TestSelectDeviceDlg : public QObject
{
    Q_OBJECT

private slots:
    void documentCamerasComeFirst_data();
    void documentCamerasComeFirst();
    void onlyOkAccepts();
};

void TestSelectDeviceDlg::documentCamerasComeFirst_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QVector<int>>("order");
    QTest::newRow("last") << QStringList{"A", "B", "USB Veltrix CX-20 cam"} << QVector<int>{2, 0, 1};
    QTest::newRow("two keep their order")
        << QStringList{"A", "Veltrix CX-20 b", "C", "Veltrix CX-20 a"} << QVector<int>{1, 3, 0, 2};
    QTest::newRow("case counts") << QStringList{"A", "veltrix cx-20"} << QVector<int>{0, 1};
    QTest::newRow("twins") << QStringList{"A", "A"} << QVector<int>{0, 1};
    QTest::newRow("none") << QStringList{} << QVector<int>{};
}

void TestSelectDeviceDlg::documentCamerasComeFirst()
{
    QFETCH(QStringList, names);
    QFETCH(QVector<int>, order);
    SelectDeviceDlg dialog;
    dialog.setVideoDeviceList(names);
    auto *box = dialog.findChild<QComboBox *>();
    QCOMPARE(box->count(), order.size());
    QCOMPARE(dialog.getVideoDevice(), order.value(0, -1));
    for (int row = 0; row < order.size(); ++row) {
        box->setCurrentIndex(row);
        QCOMPARE(dialog.getVideoDevice(), order.at(row));
        QCOMPARE(dialog.getVideoDeviceName(), names.at(order.at(row)));
    }
}

void TestSelectDeviceDlg::onlyOkAccepts()
{
    SelectDeviceDlg dialog;
    dialog.setVideoDeviceList({"A", "B"});
    QCOMPARE(dialog.width(), 200);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));

    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::mouseClick(dialog.findChild<QPushButton *>(), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

QTEST_MAIN(TestSelectDeviceDlg)
#include "tst_selectdevicedlg.moc"
