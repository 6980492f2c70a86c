#include "writer/UserInput.h"

#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeySequence>
#include <QTest>
#include <QTextCharFormat>
#include <QWheelEvent>

namespace
{

void send(const QString &preedit, const QString &commit, bool hasCaret)
{
    QList<QInputMethodEvent::Attribute> attributes;
    const int length = int(preedit.size());
    if (hasCaret)
        attributes.append({QInputMethodEvent::Cursor, length, 1, QVariant()});
    if (length > 0) {
        QTextCharFormat format;
        format.setUnderlineStyle(QTextCharFormat::SingleUnderline);
        attributes.append({QInputMethodEvent::TextFormat, 0, length, format});
    }
    QInputMethodEvent event(preedit, attributes);
    event.setCommitString(commit);
    if (QObject *focused = QGuiApplication::focusObject())
        QCoreApplication::sendEvent(focused, &event);
}

} // namespace

void UserInput::press(const QString &keys)
{
    const QKeyCombination combination = QKeySequence::fromString(keys, QKeySequence::PortableText)[0];
    QTest::keyClick(&m_window, combination.key(), combination.keyboardModifiers());
}

void UserInput::type(const QString &character)
{
    const char16_t first = character.at(0).unicode();
    const auto key = first < 128 ? Qt::Key(QChar::toUpper(first)) : Qt::Key_unknown;
    QTest::sendKeyEvent(QTest::Click, &m_window, key, character, Qt::NoModifier);
}

void UserInput::click(QPointF place, Qt::KeyboardModifiers modifiers)
{
    QTest::mouseMove(&m_window, place.toPoint());
    QTest::mouseClick(&m_window, Qt::LeftButton, modifiers, place.toPoint());
}

void UserInput::doubleClick(QPointF place)
{
    QTest::mouseMove(&m_window, place.toPoint());
    QTest::mouseDClick(&m_window, Qt::LeftButton, {}, place.toPoint());
}

void UserInput::drag(QPointF from, QPointF to)
{
    constexpr int steps = 6;
    QTest::mouseMove(&m_window, from.toPoint());
    QTest::mousePress(&m_window, Qt::LeftButton, {}, from.toPoint());
    for (int step = 1; step <= steps; ++step)
        QTest::mouseMove(&m_window, (from + (to - from) * step / steps).toPoint());
    QTest::mouseRelease(&m_window, Qt::LeftButton, {}, to.toPoint());
}

void UserInput::turnWheel(QPointF place, int angle)
{
    QWheelEvent event(place, m_window.mapToGlobal(place), {}, {0, angle}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&m_window, &event);
}

void UserInput::compose(const QString &preedit)
{
    for (int length = 1; length <= preedit.size(); ++length)
        send(preedit.first(length), {}, true);
}

void UserInput::commit(const QString &text, bool saysWhereItStands)
{
    send({}, text, false);
    if (saysWhereItStands)
        send({}, {}, true);
}
