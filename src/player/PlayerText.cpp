#include "PlayerText.h"

#include <QCoreApplication>

#include <cstring>

namespace PlayerText {

namespace {

QString clock(int milliseconds)
{
    const int seconds = qMax(0, milliseconds) / 1000;
    const QLatin1Char zero('0');
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600, 2, 10, zero)
        .arg(seconds / 60 % 60, 2, 10, zero)
        .arg(seconds % 60, 2, 10, zero);
}

} // namespace

QString fixedText(const char *array, std::size_t size)
{
    const void *end = std::memchr(array, 0, size);
    const std::size_t length = end ? static_cast<std::size_t>(static_cast<const char *>(end) - array) : size;
    return QString::fromUtf8(array, static_cast<int>(length));
}

QString engineText(const char *text)
{
    return QString::fromUtf8(text);
}

QString video(const libvp::VDVideoInfo &info)
{
    return QStringLiteral("%1 %2*%3").arg(fixedText(info.codec).toUpper()).arg(info.width).arg(info.height);
}

QString title(int title)
{
    return title == -1 ? QCoreApplication::translate("QPlayer", "None") : QString::number(title);
}

QString chapter(int current, int count)
{
    // The last chapter, and a source without chapters, show as the only one.
    return current < count ? QStringLiteral("%1 / %2").arg(current).arg(count) : QStringLiteral("1 / 1");
}

QString time(int positionMs, int totalMs)
{
    return clock(positionMs) + QStringLiteral(" / ") + clock(totalMs);
}

QString audio(const libvp::VDAudioInfo &info)
{
    return QStringLiteral("%1 %2 %3")
        .arg(fixedText(info.language), fixedText(info.name), fixedText(info.format))
        .simplified();
}

QString subtitle(const libvp::VDSubtitleInfo &info)
{
    return QStringLiteral("%1 %2").arg(fixedText(info.language), fixedText(info.name)).trimmed();
}

QString dynamicRange(int range)
{
    switch (range) {
    case libvp::VD_Range_Hdr:
        return QStringLiteral("HDR");
    case libvp::VD_Range_HdrToSdr:
        return QStringLiteral("HDR->SDR");
    default:
        return QStringLiteral("SDR");
    }
}

QString fileType(const vdFileInfo &info)
{
    switch (info.sourceForm) {
    case libvp::VD_Source_ImageDvd:
    case libvp::VD_Source_ImageBluRay:
        return QStringLiteral("ISO");
    case libvp::VD_Source_FolderDvd:
    case libvp::VD_Source_FolderBluRay:
        return QStringLiteral("Folder");
    case libvp::VD_Source_DiscDvd:
    case libvp::VD_Source_DiscBluRay:
        return QStringLiteral("Disc");
    default:
        return QStringLiteral("file");
    }
}

QString mediaType(const vdFileInfo &info)
{
    constexpr std::uint32_t resolutionBits = 0x0000FFFFU;
    constexpr std::uint32_t codecBits = 0x7FFF0000U;
    switch (info.mediaClass) {
    case libvp::VD_Media_BluRay:
        return info.flags & libvp::VD_Flag_Uhd ? QStringLiteral("UHD") : QStringLiteral("BD");
    case libvp::VD_Media_Dvd:
        return QStringLiteral("DVD");
    case libvp::VD_Media_File:
        if (info.flags & resolutionBits)
            return QStringLiteral("4K");
        return info.flags & codecBits ? QStringLiteral("HEVC") : QStringLiteral("VideoFile");
    default:
        return QStringLiteral("Unknown");
    }
}

} // namespace PlayerText
