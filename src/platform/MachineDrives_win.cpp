#include "MachineDrives.h"

#include "QuietErrors_win.h"

namespace {

constexpr int kLetters = 26;

QString rootOf(QChar letter)
{
    return QString(letter) + QStringLiteral(":\\");
}

} // namespace

QVector<Drive> MachineDrives::list()
{
    QVector<Drive> drives;
    const DWORD present = GetLogicalDrives();
    for (int i = 0; i < kLetters; ++i) {
        if (!(present & (DWORD(1) << i)))
            continue;
        const QChar letter(u'A' + i);
        const QString root = rootOf(letter);
        const UINT type = GetDriveTypeW(reinterpret_cast<const wchar_t *>(root.utf16()));
        drives << Drive{letter, static_cast<Drive::Kind>(type), root, false};
    }
    return drives;
}

QString MachineDrives::volumeLabel(const Drive &drive)
{
    const QuietErrors quiet;
    wchar_t name[MAX_PATH + 1] = {};
    const QString root = rootOf(drive.letter);
    if (!GetVolumeInformationW(reinterpret_cast<const wchar_t *>(root.utf16()), name, MAX_PATH + 1, nullptr,
                               nullptr, nullptr, nullptr, 0))
        return {};
    return QString::fromWCharArray(name);
}
