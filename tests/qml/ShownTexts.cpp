#include "ShownTexts.h"

#include "Navigation/HighlightedLine.h"
#include "Theme/PelkoVoice.h"

#include <QAccessible>
#include <QDebug>
#include <QRegularExpression>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace
{
constexpr qreal tolerance = 2; // positions are rounded to pixels, as are those of the parents

using Visit = std::function<void(QQuickItem &)>;

void visit(QQuickItem &item, const Visit &take)
{
    if (!item.isVisible() || item.opacity() < 0.05)
        return;
    take(item);
    for (QQuickItem *child : item.childItems())
        visit(*child, take);
}

bool is(const QQuickItem &item, const char *type)
{
    return QByteArrayView(item.metaObject()->className()).startsWith(type) || item.inherits(type);
}

QQuickItem *ancestor(QQuickItem &item, const char *type)
{
    QQuickItem *found = item.parentItem();
    while (found && !is(*found, type))
        found = found->parentItem();
    return found;
}

QString textOf(const QQuickItem &item)
{
    if (item.inherits("QQuickText"))
        return item.property("text").toString();
    if (is(item, "HighlightedText"))
        return item.property("line").value<HighlightedLine>().text;
    return {};
}

bool isTranslated(const QString &text)
{
    return text.contains(u'[');
}

bool isVoice(const QString &text)
{
    return PelkoVoice::errorPool().contains(text) || PelkoVoice::emptyNotesPool().contains(text) ||
           PelkoVoice::greetingPool().contains(text);
}

/// Returns the text without parts in brackets, names, keys and AM or PM.
QString rest(const QString &text)
{
    QString outside;
    int depth = 0;
    for (const QChar letter : text) {
        depth += letter == u'[' ? 1 : 0;
        if (depth == 0)
            outside += letter;
        depth -= letter == u']' ? 1 : 0;
    }
    static const QRegularExpression allowed(
        u"\\b(?:Pelko|AM|PM|F\\d+|Esc|[A-Z]|(?:Mon|Tues|Wednes|Thurs|Fri|Satur|Sun)day, [A-Z][a-z]{2} \\d+)\\b"_s);
    return outside.remove(allowed);
}

bool isRaw(const QString &text)
{
    static const QRegularExpression latin(u"[A-Za-z]"_s);
    return !isVoice(text) && rest(text).contains(latin);
}

QString told(const QQuickItem &item, const QString &text)
{
    return u"%1: “%2”"_s.arg(QString::fromLatin1(item.metaObject()->className()), text);
}

/// Returns the rectangle of the item, independent of the size of its text.
QRectF place(const QQuickItem &item)
{
    return item.mapRectToScene({0, 0, item.width(), item.height()});
}

QRectF placeOfWords(const QQuickItem &text)
{
    return text.mapRectToScene(text.boundingRect());
}

/// Returns whether the text extends beyond the sides of `frame`.
bool sticksOut(const QRectF &text, const QRectF &frame)
{
    return text.left() < frame.left() - tolerance || text.right() > frame.right() + tolerance;
}

QString whyClipped(QQuickItem &text)
{
    if (text.property("truncated").toBool())
        return u"elided"_s;
    if (text.property("contentWidth").toReal() > text.width() + tolerance)
        return u"wider than its item"_s;
    for (QQuickItem *frame = text.parentItem(); frame; frame = frame->parentItem()) {
        const bool bounds = frame->clip() || frame->inherits("QQuickAbstractButton") || !frame->parentItem();
        if (bounds && sticksOut(placeOfWords(text), place(*frame)))
            return u"sticks out of "_s + QString::fromLatin1(frame->metaObject()->className());
    }
    return {};
}

/// Returns whether the closest common parent contains hardly any other text: true for parts of a row, false
/// for a row of the page and a dialog over it.
bool standTogether(const QQuickItem &one, const QQuickItem &other, const QList<QQuickItem *> &texts)
{
    constexpr qsizetype most = 6;
    const QQuickItem *common = one.parentItem();
    while (common && !common->isAncestorOf(&other))
        common = common->parentItem();
    return common && std::ranges::count_if(texts, [common](const QQuickItem *text) {
                         return common->isAncestorOf(text);
                     }) <= most;
}

QString whyCovered(QQuickItem &text, const QList<QQuickItem *> &others)
{
    for (QQuickItem *other : others) {
        const QRectF common = placeOfWords(*other).intersected(placeOfWords(text));
        if (other != &text && common.width() > tolerance && common.height() > tolerance &&
            standTogether(text, *other, others))
            return u"lies over "_s + told(*other, textOf(*other));
    }
    return {};
}

QList<QQuickItem *> textsBelow(QQuickItem &root)
{
    QList<QQuickItem *> texts;
    visit(root, [&texts](QQuickItem &item) {
        if (!textOf(item).isEmpty() && !ancestor(item, "RollingDigit"))
            texts << &item;
    });
    return texts;
}
} // namespace

QStringList ShownTexts::translated(QQuickItem *root)
{
    QStringList found;
    for (const QQuickItem *item : textsBelow(*root)) {
        if (isTranslated(textOf(*item)))
            found << textOf(*item);
    }
    return found;
}

QStringList ShownTexts::raw(QQuickItem *root)
{
    QStringList found;
    visit(*root, [&found](QQuickItem &item) {
        QStringList texts{textOf(item)};
        if (QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(&item))
            texts << spoken->text(QAccessible::Name) << spoken->text(QAccessible::Description);
        for (const QString &text : texts) {
            if (isRaw(text))
                found << told(item, text);
        }
    });
    found.removeDuplicates();
    return found;
}

QStringList ShownTexts::clipped(QQuickItem *root)
{
    QStringList found;
    const QList<QQuickItem *> texts = textsBelow(*root);
    for (QQuickItem *item : texts) {
        const QString text = textOf(*item);
        if (!isTranslated(text))
            continue;
        for (const QString &why : {whyClipped(*item), whyCovered(*item, texts)}) {
            if (!why.isEmpty())
                found << told(*item, text) + u' ' + why;
        }
    }
    return found;
}

QString ShownTexts::picture(QQuickItem *root)
{
    QString picture;
    QDebug stream(&picture);
    for (const QQuickItem *item : textsBelow(*root))
        stream << textOf(*item) << placeOfWords(*item);
    return picture;
}

void ShownTexts::remember(QQuickItem *root)
{
    m_places.clear();
    visit(*root, [this](QQuickItem &item) {
        const bool isDigit = ancestor(item, "DigitalTime") != nullptr;
        if (!isDigit && (item.inherits("QQuickText") || is(item, "SymbolIcon") || is(item, "DigitalTime")))
            m_places.append({&item, place(item)});
    });
}

QStringList ShownTexts::notMirrored(QQuickItem *root) const
{
    QStringList found;
    const QRectF whole = place(*root);
    for (const auto &[item, before] : m_places) {
        if (!item || !item->isVisible() || ancestor(*item, "BlockList"))
            continue;
        const qreal expected = whole.left() + whole.right() - before.right();
        const qreal now = place(*item).left();
        if (std::abs(now - expected) > tolerance)
            found << u"%1 stands at %2 and not at %3"_s
                         .arg(told(*item, textOf(*item) + item->property("name").toString()))
                         .arg(now)
                         .arg(expected);
    }
    return found;
}
