#include "Store/JsonObjects.h"

#include <algorithm>

namespace
{
/// Returns the position of the first unescaped quote from `at` on, or the end of the text.
std::size_t closingQuote(std::string_view text, std::size_t at)
{
    for (at = text.find('"', at); at != text.npos; at = text.find('"', at + 1)) {
        const std::size_t backslashes = at - 1 - text.find_last_not_of('\\', at - 1);
        if (backslashes % 2 == 0)
            return at;
    }
    return text.size();
}

/// Returns the position of the brace that closes the object at `at`, or the end of the text.
std::size_t closingBrace(std::string_view text, std::size_t at)
{
    for (std::size_t depth = 0; at < text.size(); ++at) {
        if (text[at] == '"')
            at = closingQuote(text, at + 1);
        else if (text[at] == '{')
            ++depth;
        else if (text[at] == '}' && --depth == 0)
            return at;
    }
    return text.size();
}

/// A cursor over JSON text.
class Remaining
{
public:
    Remaining(std::string_view text, std::size_t start) : m_text(text), m_at(start) {}

    bool take(char character)
    {
        skipSpace();
        const bool isNext = m_at < m_text.size() && m_text[m_at] == character;
        m_at += isNext ? 1 : 0;
        return isNext;
    }

    /// Returns the length of the object, or std::nullopt if there is none.
    std::optional<std::size_t> takeObject()
    {
        skipSpace();
        const std::size_t start = m_at;
        if (start == m_text.size() || m_text[start] != '{')
            return std::nullopt;
        const std::size_t last = closingBrace(m_text, start);
        if (last == m_text.size())
            return std::nullopt;
        m_at = last + 1;
        return m_at - start;
    }

    bool isEmpty()
    {
        skipSpace();
        return m_at == m_text.size();
    }

    std::size_t at() const { return m_at; }

private:
    void skipSpace() { m_at = std::min(m_text.find_first_not_of(" \t\r\n", m_at), m_text.size()); }

    std::string_view m_text;
    std::size_t m_at;
};
} // namespace

std::optional<std::vector<ObjectRun>> findObjects(std::string_view text, std::size_t start,
                                                  const ObjectLengths &lengths)
{
    std::vector<ObjectRun> runs;
    Remaining rest(text, start);
    if (!rest.take('['))
        return std::nullopt;
    bool hasMore = !rest.take(']');
    while (hasMore) {
        if (runs.empty() || runs.back().size >= lengths.run)
            runs.push_back({.start = rest.at() - 1, .size = 0, .objects = 0});
        const auto length = rest.takeObject();
        if (!length || *length < lengths.shortest)
            return std::nullopt;
        ObjectRun &run = runs.back();
        run.size = rest.at() + 1 - run.start;
        ++run.objects;
        hasMore = rest.take(',');
        if (!hasMore && !rest.take(']'))
            return std::nullopt;
    }
    return rest.isEmpty() ? std::optional(std::move(runs)) : std::nullopt;
}
