#include "DrawingInspector.h"

#include <QHash>
#include <QRegularExpression>
#include <QStack>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace
{

constexpr double mostParts = 200'000;
constexpr qsizetype deepest = 256;

/// The cost of drawing a part, including the parts it refers to.
struct Extent {
    double parts = 0;
    qsizetype depth = 0;
};

constexpr Extent endless{std::numeric_limits<double>::infinity(), 0};

/// An element with an id, which can be referred to. Elements without one belong to their parent.
struct Part {
    double own = 0;
    qsizetype depth = 0;
    QStringList references;
    bool isBeingMeasured = false;
    std::optional<Extent> extent;
};

class Drawing
{
public:
    void enter(const QXmlStreamReader &xml)
    {
        const QXmlStreamAttributes attributes = xml.attributes();
        const QString id = attributes.value("id"_L1).toString();
        if (!id.isEmpty())
            part().references << id;
        m_open.push(id.isEmpty() && !m_open.isEmpty() ? m_open.top() : id);
        part().own += 1;
        part().depth = std::max(part().depth, m_open.size());
        for (const QXmlStreamAttribute &attribute : attributes)
            addReferences(attribute.value());
    }

    void leave() { m_open.pop(); }

    bool isTooDeep() const { return m_open.size() > deepest; }

    bool isModest()
    {
        const Extent whole = measure({});
        return whole.parts <= mostParts && whole.depth <= deepest;
    }

private:
    Part &part() { return m_parts[m_open.isEmpty() ? QString() : m_open.top()]; }

    void addReferences(QStringView value)
    {
        static const QRegularExpression reference(u"^\\s*#(\\S+)|url\\(\\s*['\"]?#([^)'\"\\s]+)"_s);
        for (const auto &match : reference.globalMatch(value.toString()))
            part().references << (match.hasCaptured(1) ? match.captured(1) : match.captured(2));
    }

    Extent measure(const QString &id)
    {
        const auto found = m_parts.find(id);
        if (found == m_parts.end())
            return {};
        if (found->extent)
            return *found->extent;
        if (found->isBeingMeasured) // it contains itself
            return endless;
        found->isBeingMeasured = true;
        Extent extent{found->own, found->depth};
        for (const QString &reference : std::as_const(found->references)) {
            const Extent used = measure(reference);
            extent.parts += used.parts;
            extent.depth = std::max(extent.depth, found->depth + used.depth);
        }
        found->extent = extent;
        return extent;
    }

    QStack<QString> m_open;
    QHash<QString, Part> m_parts;
};

/// Returns whether the address contains the data of a photo, by the signatures of photo formats.
bool isPhoto(QStringView address)
{
    constexpr QLatin1StringView mark("base64,");
    const qsizetype start = address.lastIndexOf(mark);
    if (start < 0 || !address.startsWith("data:"_L1))
        return false;
    const QStringView encoded = address.sliced(start + mark.size());
    return std::ranges::any_of(std::array{"iVBOR"_L1, "/9j/"_L1, "R0lG"_L1, "UklG"_L1},
                               [encoded](auto beginning) { return encoded.startsWith(beginning); });
}

/// Returns whether the element refers to other files, or contains a drawing that is not inspected.
bool reachesOut(const QXmlStreamReader &xml)
{
    if (xml.name() != "image"_L1)
        return false;
    const QXmlStreamAttributes attributes = xml.attributes();
    return std::ranges::any_of(attributes, [](const QXmlStreamAttribute &attribute) {
        return attribute.name() == "href"_L1 && !isPhoto(attribute.value());
    });
}

} // namespace

bool DrawingInspector::isHarmless(const QByteArray &bytes)
{
    // A compressed drawing could have any size.
    if (bytes.startsWith("\x1f\x8b"))
        return false;
    QXmlStreamReader xml(bytes);
    Drawing drawing;
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::StartElement) {
            drawing.enter(xml);
            if (reachesOut(xml) || drawing.isTooDeep())
                return false;
        } else if (token == QXmlStreamReader::EndElement) {
            drawing.leave();
        } else if (token == QXmlStreamReader::ProcessingInstruction) {
            return false;
        }
    }
    return !xml.hasError() && drawing.isModest();
}
