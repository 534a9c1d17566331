#include "dialog/saveconfirmdlg.h"
#include "dialog/waitemsgdlg.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

class TestSmallDialogs : public QObject
{
    Q_OBJECT

private slots:
    void saveAnswers_data();
    void saveAnswers();
    void waitDialogStartsTheWorkAndTellsItsEnd();
    void waitDialogCannotBeLeftEarly();

private:
    static QPushButton *button(const QWidget &dialog, const QString &text);
};

QPushButton *TestSmallDialogs::button(const QWidget &dialog, const QString &text)
{
    for (QPushButton *candidate : dialog.findChildren<QPushButton *>()) {
        if (candidate->text() == text)
            return candidate;
    }
    return nullptr;
}

void TestSmallDialogs::saveAnswers_data()
{
    QTest::addColumn<QString>("answer"); // the button; none is the escape key
    QTest::addColumn<int>("result");
    QTest::newRow("yes") << "Yes" << 1;
    QTest::newRow("no") << "No" << -1;
    QTest::newRow("cancel") << "Cancel" << 0;
    QTest::newRow("escape") << "" << 0;
}

void TestSmallDialogs::saveAnswers()
{
    QFETCH(QString, answer);
    QFETCH(int, result);
    QWidget window;
    window.setGeometry(100, 100, 600, 400);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    SaveConfirmDlg dialog(&window);
    QCOMPARE(dialog.result(), -1);
    QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
    QVERIFY(!(dialog.windowFlags() & Qt::WindowCloseButtonHint));
    QVERIFY(dialog.windowFlags() & Qt::WindowStaysOnTopHint);
    QTimer::singleShot(0, &dialog, [&] {
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QVERIFY(window.frameGeometry().contains(dialog.geometry().center()));
        if (answer.isEmpty())
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            QTest::mouseClick(button(dialog, answer), Qt::LeftButton);
    });
    QCOMPARE(dialog.exec(), result);
}

void TestSmallDialogs::waitDialogStartsTheWorkAndTellsItsEnd()
{
    CWaiteMsgDlg dialog;
    auto *text = dialog.findChild<QLabel *>();
    QPushButton *ok = button(dialog, "OK");
    dialog.setLoadingTexts("Loading it.", "Loaded it.", "Could not load it.");
    QSignalSpy starts(&dialog, &CWaiteMsgDlg::OnShow);
    for (bool success : {true, false}) {
        dialog.show();
        QCOMPARE(text->text(), QString("Please Waite.."));
        QCOMPARE(text->accessibleDescription(), QString("Loading it."));
        QVERIFY(!ok->isVisible());
        QVERIFY(starts.wait(1000));
        QVERIFY(!starts.wait(150)); // once a showing
        QCOMPARE(starts.count(), 1);
        starts.clear();

        dialog.comp(success);
        QCOMPARE(text->text(), QString(success ? "Complete" : "Failed."));
        QCOMPARE(text->accessibleDescription(), QString(success ? "Loaded it." : "Could not load it."));
        QTest::mouseClick(ok, Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
    }
}

void TestSmallDialogs::waitDialogCannotBeLeftEarly()
{
    CWaiteMsgDlg dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.close());
    QVERIFY(dialog.isVisible());
    dialog.comp(true);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
}

QTEST_MAIN(TestSmallDialogs)
#include "tst_smalldialogs.moc"
