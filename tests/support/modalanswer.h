#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <functional>

// Presses OK in the first message box that comes up while this lives, and keeps what it said.
class ModalAnswer
{
public:
    // inspect: looks at the box before it is answered.
    explicit ModalAnswer(std::function<void(QMessageBox &)> inspect = {}) : m_inspect(std::move(inspect))
    {
        constexpr int lookEveryMilliseconds = 20;
        QObject::connect(&m_look, &QTimer::timeout, [this] { answer(); });
        m_look.start(lookEveryMilliseconds);
    }

    QString text() const { return m_text; } // empty as long as no box came

private:
    void answer()
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        m_look.stop();
        m_text = box->text();
        if (m_inspect)
            m_inspect(*box);
        box->button(QMessageBox::Ok)->click();
    }

    std::function<void(QMessageBox &)> m_inspect;
    QString m_text;
    QTimer m_look;
};
