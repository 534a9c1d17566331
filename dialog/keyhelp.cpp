#include "dialog/keyhelp.h"

#include "res/drawing/plate.h"
#include "util/desktop/fonts.h"
#include "util/desktop/spokenlabel.h"

#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QWindow>

namespace
{

constexpr int mostKeys = 2; // that do the same, or the two ways of one thing

// What is no key has a name of its own instead.
struct Row {
    int keys[mostKeys];
    const char *name;
    const char *effect;
};

// All that can be done without pressing a button with mouse or finger. Whoever adds a key adds it here.
const Row rows[] = {
    {{Qt::Key_F1}, nullptr, QT_TRANSLATE_NOOP("KeyHelp", "Shows this, until the next key or touch")},
    {{Qt::Key_Tab}, nullptr, QT_TRANSLATE_NOOP("KeyHelp", "To the next button")},
    {{Qt::SHIFT + Qt::Key_Tab}, nullptr, QT_TRANSLATE_NOOP("KeyHelp", "Back to the button before")},
    {{Qt::Key_Space, Qt::Key_Enter}, nullptr, QT_TRANSLATE_NOOP("KeyHelp", "Presses the button")},
    {{Qt::Key_Left, Qt::Key_Right},
     nullptr,
     QT_TRANSLATE_NOOP("KeyHelp", "From one to the next in the list")},
    {{Qt::Key_Space}, nullptr, QT_TRANSLATE_NOOP("KeyHelp", "Chooses in the list, or leaves out again")},
    {{Qt::Key_Plus, Qt::Key_Minus}, nullptr, QT_TRANSLATE_NOOP("KeyHelp", "Live picture larger, smaller")},
    {{Qt::Key_0}, nullptr, QT_TRANSLATE_NOOP("KeyHelp", "The whole live picture")},
    {{Qt::Key_R}, nullptr, QT_TRANSLATE_NOOP("KeyHelp", "Turns the live picture by a quarter")},
    {{},
     QT_TRANSLATE_NOOP("KeyHelp", "Mouse wheel"),
     QT_TRANSLATE_NOOP("KeyHelp", "Larger or smaller, around the pointer")},
    {{},
     QT_TRANSLATE_NOOP("KeyHelp", "Two fingers"),
     QT_TRANSLATE_NOOP("KeyHelp", "Larger or smaller, between the fingers")},
    {{},
     QT_TRANSLATE_NOOP("KeyHelp", "Drag"),
     QT_TRANSLATE_NOOP("KeyHelp", "Moves the enlarged live picture")},
    {{Qt::CTRL + Qt::Key_C}, nullptr, QT_TRANSLATE_NOOP("KeyHelp", "Copies what is shown")},
    {{Qt::Key_Escape}, nullptr, QT_TRANSLATE_NOOP("KeyHelp", "Goes back from a question or message")},
    {{Qt::ALT + Qt::Key_F4}, nullptr, QT_TRANSLATE_NOOP("KeyHelp", "Ends the program")},
};

// The picture beneath can be made out, and white letters be read on white paper.
constexpr int backgroundAlpha = 180;

// Letters are as large as the height lets them be; smaller ones where a language needs more width.
constexpr int lettersPerHeight = 20;
constexpr int smallestLetters = 12; // pixels

// As it stands on the key.
QString nameOf(int key)
{
    switch (key) {
    case Qt::Key_Space:
        return KeyHelp::tr("Space bar");
    case Qt::Key_Left:
        return QString(QChar(0x2190));
    case Qt::Key_Right:
        return QString(QChar(0x2192));
    default:
        return QKeySequence(key).toString(QKeySequence::NativeText);
    }
}

QStringList namesIn(const Row &row)
{
    QStringList names;
    for (const int key : row.keys) {
        if (key != 0)
            names << nameOf(key);
    }
    if (row.name)
        names << KeyHelp::tr(row.name);
    return names;
}

// A key, drawn as the program's buttons are.
class KeyCap : public QLabel
{
public:
    explicit KeyCap(const QString &name) : QLabel(name) { setAlignment(Qt::AlignCenter); }

    QSize sizeHint() const override
    {
        const int letter = fontInfo().pixelSize();
        return QLabel::sizeHint() + QSize(letter, letter / 4);
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        constexpr qreal scale = 0.6; // of the large buttons' edges
        QPainter painter(this);
        drawPlate(painter, rect(), PlateState::Up, scale);
        painter.end();
        QLabel::paintEvent(event);
    }
};

} // namespace

KeyHelp::KeyHelp(QWidget *window)
    : QWidget(window), m_table(new QGridLayout(this)), m_heading(new SpokenLabel(this))
{
    fillTable();
    fillWindow();
    show();
    raise();
    qApp->installEventFilter(this);
}

void KeyHelp::fillTable()
{
    m_heading->setText(tr("Keys"));
    m_table->addWidget(m_heading, 1, 1, 1, 2, Qt::AlignCenter);
    QStringList words(m_heading->text());
    int line = m_table->rowCount();
    for (const Row &row : rows) {
        auto *keys = new QHBoxLayout;
        // Arrows lie as on the keyboard, whatever the language.
        keys->setDirection(isRightToLeft() ? QBoxLayout::RightToLeft : QBoxLayout::LeftToRight);
        for (const QString &name : namesIn(row))
            keys->addWidget(new KeyCap(name));
        m_table->addLayout(keys, line, 1, Qt::AlignLeading);
        m_table->addWidget(new QLabel(tr(row.effect)), line++, 2);
        words << namesIn(row).join(", ") + ": " + tr(row.effect);
    }
    m_heading->setAccessibleName(words.join(". ")); // read when it comes up
    // In the middle of the window.
    for (const int column : {0, m_table->columnCount()})
        m_table->setColumnStretch(column, 1);
    for (const int edge : {0, line})
        m_table->setRowStretch(edge, 1);
}

void KeyHelp::fillWindow()
{
    setGeometry(parentWidget()->rect());
    const auto isCut = [this] {
        const QSize needed = m_table->sizeHint();
        return needed.width() > width() || needed.height() > height();
    };
    int pixels = height() / lettersPerHeight;
    setLetters(pixels);
    while (isCut() && pixels > smallestLetters)
        setLetters(--pixels);
}

void KeyHelp::setLetters(int pixels)
{
    QFont letters = captionFont();
    letters.setPixelSize(pixels);
    setFont(letters);
    m_table->setHorizontalSpacing(pixels);
    m_table->setVerticalSpacing(pixels / 6);
    m_table->activate();
}

void KeyHelp::paintEvent(QPaintEvent *)
{
    QColor background = palette().color(QPalette::Window);
    background.setAlpha(backgroundAlpha);
    QPainter(this).fillRect(rect(), background);
}

bool KeyHelp::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (watched == parentWidget() && type == QEvent::Resize)
        fillWindow();
    else if (watched != this && watched->parent() == parent() &&
             (type == QEvent::Show || type == QEvent::ZOrderChange))
        raise(); // over what the window shows only now
    else if (isOfWindow(watched))
        return isVisible() ? takesFromWindow(*event) : takesRestOfPress(*event);
    return QWidget::eventFilter(watched, event);
}

// Once a movie has been shown, each widget has a window of its own in this one, which gets the mouse.
bool KeyHelp::isOfWindow(const QObject *watched) const
{
    const QWindow *top = window()->windowHandle();
    const auto *part = qobject_cast<const QWindow *>(watched);
    return part && (part == top || top->isAncestorOf(part, QWindow::ExcludeTransients));
}

// Whether the window, which gets all input before its widgets and shortcuts do, shall not get the event.
bool KeyHelp::takesFromWindow(QEvent &event)
{
    switch (event.type()) {
    case QEvent::WindowBlocked:
        end();
        return false;
    case QEvent::ShortcutOverride: // accepted, it comes again as a press
        break;
    case QEvent::KeyPress:
        if (!static_cast<QKeyEvent &>(event).isAutoRepeat())
            leave(false);
        break;
    case QEvent::MouseButtonPress: // of a finger too: no widget here takes its touch
        leave(true);
        break;
    default:
        return false;
    }
    event.accept();
    return true;
}

// A key that is held down must not begin to work when this is gone, nor a mouse that is drawn on.
bool KeyHelp::takesRestOfPress(QEvent &event)
{
    switch (event.type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        if (static_cast<QKeyEvent &>(event).isAutoRepeat())
            break;
        end();
        return false;
    case QEvent::MouseButtonPress:
        end();
        return false;
    case QEvent::MouseMove:
    case QEvent::MouseButtonDblClick:
        if (!m_isPointerDown)
            return false;
        break;
    case QEvent::MouseButtonRelease:
        if (!m_isPointerDown)
            return false;
        end();
        break;
    default:
        return false;
    }
    event.accept();
    return true;
}

void KeyHelp::leave(bool isPointerDown)
{
    m_isPointerDown = isPointerDown;
    hide();
}

void KeyHelp::end()
{
    qApp->removeEventFilter(this);
    hide();
    deleteLater();
}
