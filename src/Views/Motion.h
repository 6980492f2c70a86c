#pragma once

#include <QObject>
#include <QtQml/qqml.h>

/// Whether motion is reduced: then nothing moves or flickers, and changes are short fades.
/// Starts from the environment variable PELKO_REDUCED_MOTION and may be changed while the program runs.
class Motion : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool reduced READ isReduced WRITE setReduced NOTIFY reducedChanged)
    Q_PROPERTY(int fade READ fade CONSTANT)
    Q_PROPERTY(int savedIn READ savedIn NOTIFY reducedChanged)
    Q_PROPERTY(int savedOut READ savedOut NOTIFY reducedChanged)
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit Motion(QObject *parent = nullptr);

    bool isReduced() const { return m_isReduced; }
    void setReduced(bool reduced);
    /// Milliseconds of the only animation left when motion is reduced.
    int fade() const { return 120; }
    /// Milliseconds in which the tick beside the title fades in and out.
    int savedIn() const { return m_isReduced ? fade() : 150; }
    int savedOut() const { return m_isReduced ? fade() : 450; }

Q_SIGNALS:
    void reducedChanged();

private:
    bool m_isReduced;
};
