#include "Composition.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QQuickItem>

namespace
{
QString preeditOf(const QQuickItem &field)
{
    return field.property("preeditText").toString();
}

void insertComposed(QQuickItem &field, const QString &text)
{
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(&field, &event);
}
} // namespace

void Composition::settle(QQuickItem *field)
{
    // While a long text is being shown, keys wait.
    if (field && field->metaObject()->indexOfMethod("takeWaitingInput()") >= 0)
        QMetaObject::invokeMethod(field, "takeWaitingInput");
    if (!field || preeditOf(*field).isEmpty())
        return;
    if (!field->hasActiveFocus())
        return insertComposed(*field, preeditOf(*field));
    const QString composed = preeditOf(*field);
    const int length = field->property("length").toInt();
    QGuiApplication::inputMethod()->commit();
    // fcitx5 commits only on a reset, and would commit text a second time if it were inserted here without
    // one.
    if (!preeditOf(*field).isEmpty())
        QGuiApplication::inputMethod()->reset();
    // Some input methods ignore a reset, and ibus discards the text of some engines.
    if (!preeditOf(*field).isEmpty() || field->property("length").toInt() == length)
        insertComposed(*field, composed);
}
