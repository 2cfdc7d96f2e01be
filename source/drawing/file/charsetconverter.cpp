#include "charsetconverter.h"

#include <QSysInfo>

#include <cstdint>
#include <map>
#include <memory>

namespace drawing {

namespace {

const char* unicode()
{
    return QSysInfo::ByteOrder == QSysInfo::LittleEndian ? "UTF-16LE" : "UTF-16BE";
}

} // namespace

/// Converters are cached because opening one takes a thousand times as long as converting a name.
CharsetConverter* CharsetConverter::known(const QByteArray& from, const QByteArray& to)
{
    thread_local std::map<std::pair<QByteArray, QByteArray>, std::unique_ptr<CharsetConverter>>
        converters;
    const auto [at, isNew] = converters.try_emplace({from, to});
    if (isNew) {
        const iconv_t handle = iconv_open(to.constData(), from.constData());
        if (reinterpret_cast<std::intptr_t>(handle) != -1)
            at->second.reset(new CharsetConverter(handle));
    }
    return at->second.get();
}

CharsetConverter* CharsetConverter::toUnicode(const QByteArray& charset)
{
    return known(charset, unicode());
}

CharsetConverter* CharsetConverter::fromUnicode(const QByteArray& charset)
{
    return known(unicode(), charset);
}

CharsetConverter::~CharsetConverter()
{
    iconv_close(m_handle);
}

QString CharsetConverter::convert(std::string_view& bytes)
{
    constexpr size_t kUnitsForAByte = 2;
    QString text(static_cast<int>(bytes.size() * kUnitsForAByte) + 2, Qt::Uninitialized);
    char* input = const_cast<char*>(bytes.data()); // The interface lacks const.
    size_t left = bytes.size();
    char* output = reinterpret_cast<char*>(text.data());
    size_t room = static_cast<size_t>(text.size()) * sizeof(QChar);
    iconv(m_handle, nullptr, nullptr, nullptr, nullptr);
    iconv(m_handle, &input, &left, &output, &room);
    // Flushes a letter that is held back because an accent might have followed it.
    iconv(m_handle, nullptr, nullptr, &output, &room);
    text.truncate(
        static_cast<int>(output - reinterpret_cast<char*>(text.data())) / int(sizeof(QChar)));
    bytes.remove_prefix(bytes.size() - left);
    return text;
}

QString CharsetConverter::converted(std::string_view bytes)
{
    const QString text = convert(bytes);
    return bytes.empty() ? text : QString();
}

QByteArray CharsetConverter::encoded(const QString& text)
{
    constexpr int kBytesForAUnit = 4;
    QByteArray bytes(text.size() * kBytesForAUnit + kBytesForAUnit, Qt::Uninitialized);
    char* input = reinterpret_cast<char*>(const_cast<QChar*>(text.constData()));
    size_t left = static_cast<size_t>(text.size()) * sizeof(QChar);
    char* output = bytes.data();
    size_t room = static_cast<size_t>(bytes.size());
    iconv(m_handle, nullptr, nullptr, nullptr, nullptr);
    const size_t replaced = iconv(m_handle, &input, &left, &output, &room);
    iconv(m_handle, nullptr, nullptr, &output, &room);
    if (replaced != 0 || left != 0)
        return {};
    bytes.truncate(static_cast<int>(output - bytes.data()));
    return bytes;
}

} // namespace drawing
