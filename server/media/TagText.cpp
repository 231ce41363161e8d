#include "TagText.h"

#include <QLocale>
#include <QRegularExpression>
#include <QTextCodec>

#include <algorithm>

namespace TagText {

namespace {

constexpr int LongestText = 1000;

struct LanguageCharset {
    QLocale::Language language;
    const char *codec;
};

constexpr LanguageCharset charsets[] = {
    {QLocale::Japanese, "Shift_JIS"},        {QLocale::Korean, "EUC-KR"},
    {QLocale::Russian, "windows-1251"},      {QLocale::Ukrainian, "windows-1251"},
    {QLocale::Bulgarian, "windows-1251"},    {QLocale::Serbian, "windows-1251"},
    {QLocale::Byelorussian, "windows-1251"}, {QLocale::Greek, "windows-1253"},
    {QLocale::Turkish, "windows-1254"},      {QLocale::Hebrew, "windows-1255"},
    {QLocale::Arabic, "windows-1256"},       {QLocale::Thai, "windows-874"},
    {QLocale::Polish, "windows-1250"},       {QLocale::Czech, "windows-1250"},
    {QLocale::Hungarian, "windows-1250"},    {QLocale::Slovak, "windows-1250"},
    {QLocale::Romanian, "windows-1250"},     {QLocale::Croatian, "windows-1250"},
    {QLocale::Slovenian, "windows-1250"},
};

bool isAscii(const QByteArray &bytes)
{
    return std::none_of(bytes.begin(), bytes.end(), [](char c) { return uchar(c) >= 0x80; });
}

bool decodes(const QByteArray &bytes, QTextCodec *codec, QString &text)
{
    QTextCodec::ConverterState state(QTextCodec::ConvertInvalidToNull);
    text = codec->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0)
        return false;
    return std::none_of(text.begin(), text.end(), [](QChar c) {
        return c.isNull() || c == QChar::ReplacementCharacter || (c.unicode() >= 0x80 && c.unicode() < 0xA0);
    });
}

// A single accent among plain letters is a Western name, whatever the user's own language is.
bool readsLikeForeign(const QByteArray &bytes, const QString &text)
{
    int high = 0;
    int letters = 0;
    for (const char c : bytes) {
        const bool isHigh = uchar(c) >= 0x80;
        high += isHigh;
        letters += isHigh || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    }
    if (text.size() == bytes.size())
        return high * 2 >= letters;
    // Characters of several bytes: a lone high byte between plain letters is no half of one.
    int run = 0;
    int loneRuns = 0;
    int runs = 0;
    for (int i = 0; i <= bytes.size(); ++i) {
        if (i < bytes.size() && uchar(bytes.at(i)) >= 0x80) {
            ++run;
        } else if (run > 0) {
            ++runs;
            loneRuns += run == 1;
            run = 0;
        }
    }
    return loneRuns * 2 < runs;
}

} // namespace

QString clean(const QString &text)
{
    QString line = text.left(LongestText);
    for (QChar &c : line) {
        if (c.category() == QChar::Other_Control)
            c = QLatin1Char(' ');
    }
    return line.simplified();
}

QString decodeLegacy(const QByteArray &bytes, QTextCodec *local)
{
    if (isAscii(bytes))
        return QString::fromLatin1(bytes);
    QString text;
    if (decodes(bytes, QTextCodec::codecForName("UTF-8"), text))
        return text;
    if (local && decodes(bytes, local, text) && readsLikeForeign(bytes, text))
        return text;
    return QString::fromLatin1(bytes);
}

QTextCodec *localCharset()
{
    static QTextCodec *const codec = []() -> QTextCodec * {
        const QLocale locale = QLocale::system();
        if (locale.language() == QLocale::Chinese)
            return QTextCodec::codecForName(locale.script() == QLocale::TraditionalHanScript ? "Big5"
                                                                                             : "GB18030");
        for (const LanguageCharset &row : charsets) {
            if (row.language == locale.language())
                return QTextCodec::codecForName(row.codec);
        }
        return nullptr;
    }();
    return codec;
}

QString titleOf(const QString &path, int *trackNumber)
{
    static const QRegularExpression numbered(
        QStringLiteral(R"(^(\d{1,3})(?:\s*[._]\s*(?=\D)|\s*-\s*(?=\S)))"));
    if (trackNumber)
        *trackNumber = 0;
    const QString name = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    const QString base = clean(dot > 0 ? name.left(dot) : name);
    const QRegularExpressionMatch match = numbered.match(base);
    if (!match.hasMatch())
        return base;
    if (trackNumber)
        *trackNumber = match.captured(1).toInt();
    return base.mid(match.capturedEnd());
}

} // namespace TagText
