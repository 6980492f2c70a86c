#include "Composition.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QQuickItem>

void Composition::settle(QQuickItem *field)
{
    if (!field || field->property("preeditText").toString().isEmpty())
        return;
    // An input method commits what it would itself. Not every one does when asked.
    if (field->hasActiveFocus())
        QGuiApplication::inputMethod()->commit();
    const QString rest = field->property("preeditText").toString();
    if (rest.isEmpty())
        return;
    QInputMethodEvent event;
    event.setCommitString(rest);
    QCoreApplication::sendEvent(field, &event);
}
