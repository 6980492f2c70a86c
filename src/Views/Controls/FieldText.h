#pragma once

#include "Editor/BackspaceLength.h"
#include "Models/LineBreaks.h"

#include <QObject>
#include <QtQml/qqml.h>

/// Functions on texts for fields in QML.
class FieldText : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Returns how many UTF-16 units Backspace deletes behind the text `before` the caret; see
    /// backspaceLength().
    Q_INVOKABLE int backspaceLength(const QString &before) const
    {
        return static_cast<int>(::backspaceLength(before));
    }

    /// The text for a field of one line; see onOneLine().
    Q_INVOKABLE QString onOneLine(const QString &text) const { return ::onOneLine(text); }
};
