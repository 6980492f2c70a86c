#include "IndependentReader.h"

#include "PlainJson.h"

#include <cctype>

namespace
{
/// Thrown for malformed files. Unlike the program, a test may use exceptions.
struct Broken {
};

const PlainJson *find(const PlainJson &json, const char *key)
{
    const auto *object = std::get_if<PlainJson::Object>(&json.value);
    if (!object)
        throw Broken();
    const auto found = object->find(key);
    return found == object->end() ? nullptr : &found->second;
}

template <typename Value>
const Value &as(const PlainJson &json)
{
    const auto *value = std::get_if<Value>(&json.value);
    return value ? *value : throw Broken();
}

template <typename Value>
Value convert(const PlainJson &json);

template <>
bool convert(const PlainJson &json)
{
    return as<bool>(json);
}

template <>
double convert(const PlainJson &json)
{
    return as<double>(json);
}

template <>
QString convert(const PlainJson &json)
{
    QString text;
    const std::string &bytes = as<std::string>(json);
    for (std::size_t at = 0; at < bytes.size();) { // Qt's decoder would drop a leading U+FEFF
        const auto lead = static_cast<unsigned char>(bytes[at]);
        const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        char32_t code = length == 1 ? lead : lead & (0x7F >> length);
        for (std::size_t index = 1; index < length; ++index)
            code = code << 6 | (static_cast<unsigned char>(bytes[at + index]) & 0x3F);
        text.append(QStringView(QChar::fromUcs4(code)));
        at += length;
    }
    return text;
}

template <>
QByteArray convert(const PlainJson &json)
{
    const auto bytes = decodeIndependently(as<std::string>(json));
    return bytes ? *bytes : throw Broken();
}

template <>
QUuid convert(const PlainJson &json)
{
    const std::string &text = as<std::string>(json);
    if (text.size() != 36)
        throw Broken();
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool hyphen = at == 8 || at == 13 || at == 18 || at == 23;
        if (hyphen ? text[at] != '-' : !std::isxdigit(static_cast<unsigned char>(text[at])))
            throw Broken();
    }
    return QUuid::fromString(QString::fromLatin1(text.data(), qsizetype(text.size())));
}

template <typename Value>
Value oneOf(const PlainJson &json, std::initializer_list<std::pair<std::string_view, Value>> names)
{
    for (const auto &[name, value] : names) {
        if (as<std::string>(json) == name)
            return value;
    }
    throw Broken();
}

template <>
Space convert(const PlainJson &json)
{
    return oneOf<Space>(json, {{"ideas", Space::ideas}, {"work", Space::work}, {"journal", Space::journal}});
}

template <>
BlockType convert(const PlainJson &json)
{
    return oneOf<BlockType>(json, {{"textLarge", BlockType::textLarge},
                                   {"textSmall", BlockType::textSmall},
                                   {"quote", BlockType::quote},
                                   {"code", BlockType::code},
                                   {"divider", BlockType::divider},
                                   {"image", BlockType::image},
                                   {"sticky", BlockType::sticky}});
}

template <typename Value>
void require(const PlainJson &json, const char *key, Value &value)
{
    const PlainJson *member = find(json, key);
    value = member ? convert<Value>(*member) : throw Broken();
}

template <typename Value>
void accept(const PlainJson &json, const char *key, std::optional<Value> &value)
{
    const PlainJson *member = find(json, key);
    if (member && !std::holds_alternative<std::nullptr_t>(member->value))
        value = convert<Value>(*member);
}

template <typename Value>
QList<Value> convertAll(const PlainJson &json)
{
    QList<Value> values;
    for (const PlainJson &element : as<PlainJson::Array>(json))
        values.append(convert<Value>(element));
    return values;
}

template <>
TodoItem convert(const PlainJson &json)
{
    TodoItem item;
    require(json, "id", item.id);
    require(json, "text", item.text);
    require(json, "done", item.done);
    return item;
}

template <>
QList<TodoItem> convert(const PlainJson &json)
{
    return convertAll<TodoItem>(json);
}

template <>
Block convert(const PlainJson &json)
{
    Block block;
    require(json, "id", block.id);
    require(json, "type", block.type);
    require(json, "content", block.content);
    accept(json, "imageData", block.imageData);
    accept(json, "todos", block.todos);
    accept(json, "isFullWidth", block.isFullWidth);
    accept(json, "bannerTitle", block.bannerTitle);
    return block;
}

template <>
QList<Block> convert(const PlainJson &json)
{
    return convertAll<Block>(json);
}

template <>
PelkoDocument convert(const PlainJson &json)
{
    PelkoDocument document;
    require(json, "id", document.id);
    require(json, "space", document.space);
    require(json, "blocks", document.blocks);
    require(json, "createdAt", document.createdAt);
    accept(json, "updatedAt", document.updatedAt);
    accept(json, "isPinned", document.isPinned);
    accept(json, "isArchived", document.isArchived);
    return document;
}
} // namespace

std::optional<QList<PelkoDocument>> readIndependently(std::string_view text)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    const auto json = parsePlainJson(text);
    if (!json)
        return std::nullopt;
    try {
        return convertAll<PelkoDocument>(*json);
    } catch (const Broken &) {
        return std::nullopt;
    }
}

std::optional<QByteArray> decodeIndependently(std::string_view text)
{
    constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    if (text.size() % 4 != 0)
        return std::nullopt;
    const std::size_t padding = text.ends_with("==") ? 2 : text.ends_with("=") ? 1 : 0;
    text.remove_suffix(padding);
    QByteArray bytes;
    unsigned bits = 0;
    int bitCount = 0;
    for (const char character : text) {
        const auto value = alphabet.find(character);
        if (value == alphabet.npos)
            return std::nullopt;
        bits = bits << 6 | unsigned(value);
        bitCount += 6;
        if (bitCount >= 8) {
            bitCount -= 8;
            bytes.append(static_cast<char>(bits >> bitCount & 0xFF));
        }
    }
    return bytes;
}
