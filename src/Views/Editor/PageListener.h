#pragma once

#include <QObject>
#include <QtQml/qqml.h>

class BlockPlace;
class FieldCaret;
class QEvent;

/// Receives the events of the fields and blocks of a page.
class PageListener : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    using QObject::QObject;

    virtual void add(FieldCaret &field) = 0;
    virtual void add(BlockPlace &block) = 0;
    /// The field got the focus.
    virtual void entered(FieldCaret &field) = 0;
    /// Called before the field handles the event. Returns whether the event was handled.
    virtual bool handle(FieldCaret &field, QEvent &event) = 0;
    /// The selection in the field is to be offered as the primary selection.
    virtual void offer(const FieldCaret &field) = 0;
};
