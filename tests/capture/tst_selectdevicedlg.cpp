#include "capture/selectdevicedlg.h"

#include <QComboBox>
#include <QPushButton>
#include <QTest>

class TestSelectDeviceDlg : public QObject
{
    Q_OBJECT

private slots:
    void documentCamerasComeFirst();
    void onlyOkAccepts();
};

void TestSelectDeviceDlg::documentCamerasComeFirst()
{
    const struct {
        QStringList names;
        QVector<int> order;
    } table[] = {
        {{"A", "Veltrix CX-20 b", "C", "USB Veltrix CX-20 a"}, {1, 3, 0, 2}},
        {{"A", "veltrix cx-20"}, {0, 1}}, // case counts
        {{"A", "A"}, {0, 1}},
        {{}, {}},
    };
    for (const auto &row : table) {
        SelectDeviceDlg dialog;
        dialog.setVideoDeviceList(row.names);
        auto *box = dialog.findChild<QComboBox *>();
        QCOMPARE(box->count(), row.order.size());
        QCOMPARE(dialog.getVideoDevice(), row.order.value(0, -1));
        for (int place = 0; place < row.order.size(); ++place) {
            box->setCurrentIndex(place);
            QCOMPARE(dialog.getVideoDevice(), row.order.at(place));
            QCOMPARE(dialog.getVideoDeviceName(), row.names.at(row.order.at(place)));
        }
    }
}

void TestSelectDeviceDlg::onlyOkAccepts()
{
    SelectDeviceDlg dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible() && dialog.result() == QDialog::Rejected);
    dialog.show();
    QTest::mouseClick(dialog.findChild<QPushButton *>(), Qt::LeftButton);
    QVERIFY(!dialog.isVisible() && dialog.result() == QDialog::Accepted);
}

QTEST_MAIN(TestSelectDeviceDlg)
#include "tst_selectdevicedlg.moc"
