// Any bytes can be decoded from their base64, which equals Qt's with escaped slashes; any text is decoded as
// by the independent decoder, or rejected by both.

#include "IndependentReader.h"
#include "Store/Base64.h"

#include <cstdint>

namespace
{
void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}

QByteArray encode(const QByteArray &bytes)
{
    QByteArray text(longestEscapedBase64(bytes.size()), Qt::Uninitialized);
    text.truncate(encodeEscapedBase64(bytes, text.data()) - text.constData());
    return text;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const std::string_view text(bytes.constData(), size);
    require(decodeBase64(text) == decodeIndependently(text));

    const QByteArray plain = bytes.toBase64();
    require(encode(bytes) == QByteArray(plain).replace("/", "\\/"));
    require(decodeBase64({plain.constData(), std::size_t(plain.size())}) == bytes);
    return 0;
}
