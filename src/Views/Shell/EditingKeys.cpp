#include "EditingKeys.h"

#include "Shell/MenuCommands.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QQuickItem>

#include <algorithm>

bool EditingKeys::press(QQuickWindow *window, const QString &command)
{
    const auto found = std::ranges::find(MenuCommand::all(), command, &MenuCommand::id);
    if (!window || found == MenuCommand::all().end())
        return false;
    const QKeyCombination key = QKeySequence(found->shortcut, QKeySequence::PortableText)[0];
    QKeyEvent press(QEvent::KeyPress, key.key(), key.keyboardModifiers());
    press.ignore();
    // Sent to the window, the key would trigger the command's shortcut again.
    for (QQuickItem *item = window->activeFocusItem(); item && !press.isAccepted();
         item = item->parentItem()) {
        press.accept();
        QCoreApplication::sendEvent(item, &press);
    }
    return press.isAccepted();
}
