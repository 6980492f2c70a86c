#pragma once

#include <QObject>
#include <QtQml/qqml.h>

class BlockPlace;
class FieldCaret;
class QEvent;

/// What the fields and blocks of a page report to it.
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
    /// An event that the field has not seen yet. Returns whether it has done its work.
    virtual bool handle(FieldCaret &field, QEvent &event) = 0;
    /// What is selected in the field is offered to the middle button.
    virtual void offer(const FieldCaret &field) = 0;
};
