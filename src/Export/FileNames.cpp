#include "Export/FileNames.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTextBoundaryFinder>

using namespace Qt::StringLiterals;

namespace
{
// File systems allow 255 bytes, encrypting ones about 140. Suffixes stay below 60.
constexpr qsizetype longestName = 80;

bool isDropped(QChar character)
{
    const bool joins =
        character == QChar(0x200c) || character == QChar(0x200d); // belongs to letters or emoji
    return character.category() == QChar::Other_Format && !joins;
}

QString withoutForbidden(const QString &text)
{
    QString kept;
    for (const QChar character : text) {
        if (u"/\\|:"_s.contains(character))
            kept += u'-';
        else if (character.category() == QChar::Other_Control || u"<>\"?*"_s.contains(character))
            kept += u' ';
        else if (!isDropped(character))
            kept += character;
    }
    return kept.simplified();
}

/// A leading dot hides a file, a leading hyphen looks like an option, and trailing dots are dropped.
QString trimmed(const QString &name)
{
    static const QRegularExpression edges(u"^[\\s.-]+|[\\s.]+$"_s);
    return QString(name).remove(edges);
}

/// Returns the longest beginning of at most `bytes` bytes that ends at a grapheme boundary.
QString shortened(const QString &name, qsizetype bytes)
{
    if (name.toUtf8().size() <= bytes)
        return name;
    QTextBoundaryFinder boundaries(QTextBoundaryFinder::Grapheme, name);
    qsizetype end = 0;
    while (boundaries.toNextBoundary() > 0) {
        const qsizetype next = boundaries.position();
        if (QStringView(name).first(next).toUtf8().size() > bytes)
            break;
        end = next;
    }
    const qsizetype lastSpace = name.lastIndexOf(u' ', end);
    return name.first(lastSpace > end / 2 ? lastSpace : end);
}

/// Device names that some systems reserve, with any suffix.
bool isReserved(const QString &name)
{
    static const QRegularExpression devices(
        u"^(?:con|prn|aux|nul|conin\\$|conout\\$|(?:com|lpt)[0-9¹²³])\\s*(?:\\.|$)"_s,
        QRegularExpression::CaseInsensitiveOption);
    return devices.match(name).hasMatch();
}
} // namespace

QString fileNameFrom(const QString &text)
{
    // Limited before the work: a title may be very long. UTF-8 turns half a surrogate pair into a question
    // mark, which is removed as forbidden.
    const QString start = QString::fromUtf8(text.trimmed().left(1000).toUtf8());
    const QString composed = start.normalized(QString::NormalizationForm_C);
    const QString name = trimmed(shortened(trimmed(withoutForbidden(composed)), longestName));
    if (name.isEmpty()) {
        //: Name of the file of a page without words.
        return QCoreApplication::translate("Export", "Untitled");
    }
    return isReserved(name) ? u'_' + name : name;
}

QString FileNames::take(const QString &text, const QUuid &id)
{
    const QString plain = fileNameFrom(text);
    const QString digits = id.toString(QUuid::Id128);
    for (const QString &name : {plain, plain + u' ' + digits.first(8), plain + u' ' + digits}) {
        if (takeIfFree(name))
            return name;
    }
    // Duplicate ids only occur in hand-written files.
    for (int number = 2;; ++number) {
        const QString name = plain + u' ' + QString::number(number);
        if (takeIfFree(name))
            return name;
    }
}

bool FileNames::takeIfFree(const QString &name)
{
    // Upper case first, because it turns "ß" into "SS".
    const QString seen = name.toUpper().toCaseFolded().normalized(QString::NormalizationForm_C);
    if (m_taken.contains(seen))
        return false;
    m_taken.insert(seen);
    return true;
}
