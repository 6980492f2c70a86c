#include "Store/DocumentReader.h"

#include "Store/Base64.h"
#include "Store/JsonObjects.h"
#include "Store/UuidText.h"

#include <simdjson.h>

#include <algorithm>
#include <array>
#include <ranges>

namespace dom = simdjson::dom;
using namespace std::string_view_literals;

namespace
{
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view shortestDocument =
    R"({"id":"00000000-0000-0000-0000-000000000000","space":"work","blocks":[],"createdAt":0})";
/// The number of bytes behind a text that the parser may read.
constexpr auto padding = qsizetype(simdjson::SIMDJSON_PADDING);
static_assert(padding < qsizetype(shortestDocument.size()), "a run pads the one before it");

/// Returns the values of these names in a JSON object, the last one of duplicates. All are std::nullopt if
/// `json` is not an object.
template <std::size_t count>
std::array<std::optional<dom::element>, count> membersOf(dom::element json,
                                                         const std::array<std::string_view, count> &names)
{
    std::array<std::optional<dom::element>, count> members;
    dom::object object;
    if (json.get(object) != simdjson::SUCCESS)
        return members;
    std::size_t expected = 0; // members are usually in the order of the names
    for (const dom::key_value_pair member : object) {
        if (expected >= count || member.key != names[expected])
            expected = std::size_t(std::ranges::find(names, member.key) - names.begin());
        if (expected < count)
            members[expected++] = member.value;
    }
    return members;
}

// The value types of "data.json". Each function returns false if the JSON has another type.

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
    // QString::fromUtf8 reserves a unit for each byte, three times what Chinese needs.
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

/// Returns false if the member is missing or has the wrong type.
template <typename Value>
bool required(const std::optional<dom::element> &member, Value &value)
{
    return member && read(*member, value);
}

/// Returns false if the member exists and has the wrong type.
template <typename Value>
bool optional(const std::optional<dom::element> &member, std::optional<Value> &value)
{
    if (member && !member->is_null())
        return read(*member, value.emplace());
    value.reset();
    return true;
}

bool read(dom::element json, TodoItem &item)
{
    constexpr std::array names{"id"sv, "text"sv, "done"sv};
    const auto &[id, text, done] = membersOf(json, names);
    return required(id, item.id) && required(text, item.text) && required(done, item.done);
}

bool read(dom::element json, Block &block)
{
    constexpr std::array names{"id"sv,    "type"sv,        "content"sv,    "imageData"sv,
                               "todos"sv, "isFullWidth"sv, "bannerTitle"sv};
    const auto &[id, type, content, imageData, todos, isFullWidth, bannerTitle] = membersOf(json, names);
    return required(id, block.id) && required(type, block.type) && required(content, block.content) &&
           optional(imageData, block.imageData) && optional(todos, block.todos) &&
           optional(isFullWidth, block.isFullWidth) && optional(bannerTitle, block.bannerTitle);
}

bool read(dom::element json, PelkoDocument &document)
{
    constexpr std::array names{"id"sv,        "space"sv,    "blocks"sv,    "createdAt"sv,
                               "updatedAt"sv, "isPinned"sv, "isArchived"sv};
    const auto &[id, space, blocks, createdAt, updatedAt, isPinned, isArchived] = membersOf(json, names);
    return required(id, document.id) && required(space, document.space) &&
           required(blocks, document.blocks) && required(createdAt, document.createdAt) &&
           optional(updatedAt, document.updatedAt) && optional(isPinned, document.isPinned) &&
           optional(isArchived, document.isArchived);
}

template <typename Value>
Value unread()
{
    return {};
}

template <>
TodoItem unread()
{
    return {.id = {}, .text = {}, .done = false}; // without it, a fresh UUID would be generated
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

/// Parses the last run and frees its text.
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

/// Reads the runs from the last to the first, so that their text can be freed meanwhile.
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
