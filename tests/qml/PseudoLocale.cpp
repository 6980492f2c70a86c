#include "PseudoLocale.h"

#include <QGuiApplication>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace
{
/// Formats of dates and times are not shown; QLocale uses them.
const QStringList formats{u"MMM d"_s, u"dddd, MMM d"_s, u"h:mm a"_s};

bool isOfQt(const char *context)
{
    return context[0] == 'Q' && context[1] >= 'A' && context[1] <= 'Z';
}

QChar accented(QChar letter)
{
    const QString plain = u"AEIOUaeiouncys"_s;
    const QString strange = u"ÅÉÎÕÜåéîõüñçýš"_s;
    const qsizetype place = plain.indexOf(letter);
    return place < 0 ? letter : strange.at(place);
}

/// Replaces letters with accented ones, except in placeholders such as %1, %n and %L2.
QString accented(const QString &text)
{
    static const QRegularExpression place(u"%L?(\\d|n)"_s);
    QString result;
    qsizetype from = 0;
    for (const QRegularExpressionMatch &match : place.globalMatch(text)) {
        for (const QChar letter : text.sliced(from, match.capturedStart() - from))
            result += accented(letter);
        result += match.captured();
        from = match.capturedEnd();
    }
    for (const QChar letter : text.sliced(from))
        result += accented(letter);
    return result;
}
} // namespace

QString PseudoTranslator::translate(const char *context, const char *text, const char * /*disambiguation*/,
                                    int /*n*/) const
{
    const QString english = QString::fromUtf8(text);
    if (isOfQt(context) || formats.contains(english))
        return {};
    const qsizetype more = (english.size() * 2 + 4) / 5;
    return u'[' + accented(english) + QString(std::max<qsizetype>(0, more - 2), u'~') + u']';
}

PseudoLocale::PseudoLocale(QObject *parent) : QObject(parent)
{
    QCoreApplication::installTranslator(&m_translator);
}

PseudoLocale::~PseudoLocale()
{
    QCoreApplication::removeTranslator(&m_translator);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

bool PseudoLocale::isRightToLeft()
{
    return QGuiApplication::isRightToLeft();
}

void PseudoLocale::setRightToLeft(bool rightToLeft)
{
    QGuiApplication::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    Q_EMIT rightToLeftChanged();
}
