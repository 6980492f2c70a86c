#include "Store/DocumentReader.h"

#include "Store/Base64.h"
#include "Store/JsonObjects.h"
#include "Store/UuidText.h"

#include <QVarLengthArray>

#include <simdjson.h>

#include <ranges>

namespace dom = simdjson::dom;

namespace
{
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view shortestDocument =
    R"({"id":"00000000-0000-0000-0000-000000000000","space":"work","blocks":[],"createdAt":0})";
/// The parser may look at so many bytes after a text, without counting them.
constexpr auto padding = qsizetype(simdjson::SIMDJSON_PADDING);
static_assert(padding < qsizetype(shortestDocument.size()), "a run pads the one before it");

/// The members of one JSON object, found by name.
class Members
{
public:
    explicit Members(dom::element json)
    {
        dom::object object;
        if (json.get(object) != simdjson::SUCCESS)
            return;
        for (const dom::key_value_pair member : object)
            m_members.append({member.key, member.value});
    }

    /// False when the member is missing or is not what `value` can hold.
    template <typename Value>
    bool required(std::string_view key, Value &value) const;

    /// False when the member is there and is not what `value` can hold.
    template <typename Value>
    bool optional(std::string_view key, std::optional<Value> &value) const;

private:
    std::optional<dom::element> last(std::string_view key) const;

    QVarLengthArray<std::pair<std::string_view, dom::element>, 8> m_members;
};

// What "data.json" may hold, value by value. Each is false when the JSON is of another kind.

bool read(dom::element json, bool &value)
{
    return json.get(value) == simdjson::SUCCESS;
}

bool read(dom::element json, double &value)
{
    return json.get(value) == simdjson::SUCCESS;
}

bool read(dom::element json, std::string_view &value)
{
    return json.get(value) == simdjson::SUCCESS;
}

bool read(dom::element json, QString &value)
{
    std::string_view text;
    if (!read(json, text))
        return false;
    // QString::fromUtf8 takes a mark at the start for a byte order mark and drops it; here it is text.
    qsizetype marks = 0;
    for (; text.starts_with(byteOrderMark); text.remove_prefix(byteOrderMark.size()))
        ++marks;
    value = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    if (marks > 0)
        value.prepend(QString(marks, QChar::ByteOrderMark));
    // QString::fromUtf8 makes room for a unit of each byte, three times what Chinese needs.
    if (value.capacity() > value.size() + value.size() / 4)
        value.squeeze();
    return true;
}

QUtf8StringView inUtf8(std::string_view text)
{
    return {text.data(), qsizetype(text.size())};
}

template <typename Value>
bool assign(Value &value, std::optional<Value> read)
{
    if (read)
        value = std::move(*read);
    return read.has_value();
}

bool read(dom::element json, QUuid &value)
{
    std::string_view text;
    return read(json, text) && assign(value, uuidFromText(text));
}

bool read(dom::element json, QByteArray &value)
{
    std::string_view text;
    return read(json, text) && assign(value, decodeBase64(text));
}

bool read(dom::element json, Space &value)
{
    std::string_view raw;
    return read(json, raw) && assign(value, spaceFromRawValue(inUtf8(raw)));
}

bool read(dom::element json, BlockType &value)
{
    std::string_view raw;
    return read(json, raw) && assign(value, blockTypeFromRawValue(inUtf8(raw)));
}

template <typename Value>
bool read(dom::element json, QList<Value> &values);

bool read(dom::element json, TodoItem &item)
{
    const Members members(json);
    return members.required("id", item.id) && members.required("text", item.text) &&
           members.required("done", item.done);
}

bool read(dom::element json, Block &block)
{
    const Members members(json);
    return members.required("id", block.id) && members.required("type", block.type) &&
           members.required("content", block.content) && members.optional("imageData", block.imageData) &&
           members.optional("todos", block.todos) && members.optional("isFullWidth", block.isFullWidth) &&
           members.optional("bannerTitle", block.bannerTitle);
}

bool read(dom::element json, PelkoDocument &document)
{
    const Members members(json);
    return members.required("id", document.id) && members.required("space", document.space) &&
           members.required("blocks", document.blocks) && members.required("createdAt", document.createdAt) &&
           members.optional("updatedAt", document.updatedAt) &&
           members.optional("isPinned", document.isPinned) &&
           members.optional("isArchived", document.isArchived);
}

template <typename Value>
Value unread()
{
    return {};
}

template <>
TodoItem unread()
{
    return {.id = {}, .text = {}, .done = false}; // left out, the id would be a fresh one
}

template <typename Value>
bool read(dom::element json, QList<Value> &values)
{
    dom::array array;
    if (json.get(array) != simdjson::SUCCESS)
        return false;
    values.clear();
    values.reserve(qsizetype(array.size()));
    for (const dom::element element : array) {
        auto value = unread<Value>();
        if (!read(element, value))
            return false;
        values.append(std::move(value));
    }
    return true;
}

std::optional<dom::element> Members::last(std::string_view key) const
{
    for (const auto &[name, value] : m_members | std::views::reverse) {
        if (name == key)
            return value;
    }
    return std::nullopt;
}

template <typename Value>
bool Members::required(std::string_view key, Value &value) const
{
    const auto json = last(key);
    return json && read(*json, value);
}

template <typename Value>
bool Members::optional(std::string_view key, std::optional<Value> &value) const
{
    const auto json = last(key);
    if (!json || json->is_null()) {
        value.reset();
        return true;
    }
    return read(*json, value.emplace());
}

/// Reads the last run, the rest of whose text is given back, into as many documents.
bool takeLast(QByteArray &json, const ObjectRun &run, dom::parser &parser,
              QList<PelkoDocument>::iterator document)
{
    char *text = json.data() + run.start;
    text[0] = '[';
    text[run.size - 1] = ']';
    constexpr bool copyFirst = false;
    dom::array array;
    const bool isArray = parser.parse(text, run.size, copyFirst).get(array) == simdjson::SUCCESS;
    // The parser keeps its own copy of every string. The first byte may be the last one of the run before.
    json.truncate(qsizetype(run.start) + 1 + padding);
    json.squeeze();
    if (!isArray)
        return false;
    Q_ASSERT(qsizetype(array.size()) == run.objects); // in valid JSON, braces tell how many there are
    for (const dom::element element : array) {
        if (!read(element, *document++))
            return false;
    }
    return true;
}

/// From the last to the first, so that the text makes room for the documents.
std::optional<QList<PelkoDocument>> readRuns(QByteArray json, const std::vector<ObjectRun> &runs)
{
    qsizetype count = 0;
    for (const ObjectRun &run : runs)
        count += run.objects;
    QList<PelkoDocument> documents(count);
    auto document = documents.end();
    dom::parser parser;
    for (const ObjectRun &run : runs | std::views::reverse) {
        document -= run.objects;
        if (!takeLast(json, run, parser, document))
            return std::nullopt;
    }
    return documents;
}
} // namespace

std::optional<QList<PelkoDocument>> readDocuments(QByteArray json)
{
    json.reserve(json.size() + padding);
    const std::string_view text(json.constData(), std::size_t(json.size()));
    const std::size_t start = text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0;
    const auto runs = findObjects(text, start, {.shortest = shortestDocument.size(), .run = 64 * 1024});
    return runs ? readRuns(std::move(json), *runs) : std::nullopt;
}
