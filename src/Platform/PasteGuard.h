#pragma once

#include "Platform/ClipboardOwner.h"

#include <QObject>

/// Keeps the window alive when the program that owns the clipboard hangs: Qt would wait five seconds for its
/// answer, in the middle of an event. A key or a middle click that pastes is dropped when the owner does not
/// answer; all others pass. Needs a QGuiApplication, to which it belongs.
class PasteGuard : public QObject
{
public:
    PasteGuard();

    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    ClipboardOwner m_owner;
};
