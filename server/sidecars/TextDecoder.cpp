#include "TextDecoder.h"

#include <QTextCodec>

namespace TextDecoder {

namespace {

constexpr int utf8Mib = 106;
constexpr int utf16Mib = 1015;

bool isEightBit(const QTextCodec *codec)
{
    if (!codec || codec->mibEnum() == utf8Mib)
        return false;
    const QByteArray name = codec->name().toUpper();
    return !name.startsWith("UTF-16") && !name.startsWith("UTF-32") && !name.startsWith("ISO-10646");
}

const QTextCodec *localCodec(const QByteArray &declared)
{
    const QTextCodec *codec = declared.isEmpty() ? nullptr : QTextCodec::codecForName(declared);
    if (isEightBit(codec))
        return codec;
    codec = QTextCodec::codecForLocale();
    // A machine that runs in plain ASCII has no local letters to offer.
    if (isEightBit(codec) && codec->mibEnum() != 3)
        return codec;
    return QTextCodec::codecForName("Windows-1252");
}

} // namespace

QString decode(const QByteArray &bytes, const QByteArray &declared)
{
    if (bytes.startsWith("\xef\xbb\xbf"))
        return QString::fromUtf8(bytes.mid(3));
    if (bytes.startsWith("\xff\xfe") || bytes.startsWith("\xfe\xff"))
        return QTextCodec::codecForMib(utf16Mib)->toUnicode(bytes);
    QTextCodec::ConverterState state;
    const QString text = QTextCodec::codecForMib(utf8Mib)->toUnicode(bytes.constData(), bytes.size(), &state);
    // A sheet cut within a character is UTF-8 all the same.
    if (state.invalidChars == 0)
        return text;
    const QTextCodec *codec = localCodec(declared);
    return codec ? codec->toUnicode(bytes) : QString::fromLatin1(bytes);
}

} // namespace TextDecoder
