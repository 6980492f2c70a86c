#include "Platform/PasteGuard.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include <optional>

namespace
{
/// Returns which clipboard the event would paste, or std::nullopt.
std::optional<QClipboard::Mode> pasted(const QEvent &event)
{
    if (event.type() == QEvent::KeyPress &&
        static_cast<const QKeyEvent &>(event).matches(QKeySequence::Paste))
        return QClipboard::Clipboard;
    const bool isPress = event.type() == QEvent::MouseButtonPress;
    if (isPress && static_cast<const QMouseEvent &>(event).button() == Qt::MiddleButton)
        return QClipboard::Selection;
    return std::nullopt;
}
} // namespace

PasteGuard::PasteGuard()
{
    QCoreApplication::instance()->installEventFilter(this);
    // With each change of the clipboard every text field would ask its owner whether there is text. No view
    // shows it.
    QGuiApplication::clipboard()->blockSignals(true);
}

bool PasteGuard::eventFilter(QObject *receiver, QEvent *event)
{
    if (!receiver->isWindowType())
        return false;
    const std::optional<QClipboard::Mode> mode = pasted(*event);
    return mode && !m_owner.answers(*mode);
}
