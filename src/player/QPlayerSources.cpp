// Sources that are not played: their pictures, discs and the backups of discs.
#include "QPlayer.h"

#include "EngineProperties.h"
#include "PlayerText.h"

namespace {

constexpr int usualTitleCount = 256;
constexpr int mostTitles = 4096;
constexpr int exactFrame = 1;

QByteArray driveName(const QString &drive)
{
    // A letter or a path; Latin-1 for the letter is the same in UTF-8.
    return drive.toUtf8();
}

} // namespace

void QPlayer::setDriveResolver(DriveResolver resolver)
{
    std::lock_guard lock(m_stateMutex);
    m_driveResolver = std::move(resolver);
}

// The engine knows drives by the letters that it is told.
void QPlayer::announceDrive(const QString &path)
{
    if (path.size() != 1 || !path.at(0).isLetter() || path.at(0).unicode() > 'z')
        return;
    DriveResolver resolver;
    {
        std::lock_guard lock(m_stateMutex);
        resolver = m_driveResolver;
    }
    const QString target = resolver ? resolver(path.at(0)) : QString();
    if (target.isEmpty())
        return;
    const QByteArray name = EngineProperties::Drive + path.toUpper().toLatin1();
    setStringProperty(name.constData(), target.toUtf8());
}

int QPlayer::openThumbnails(const QString &path, int itemType, int titleNumber, int width, int height)
{
    const auto core = m_core.use();
    if (!core)
        return 0;
    closeThumbnails();
    unsigned generation = 0;
    {
        std::lock_guard lock(m_stateMutex);
        generation = ++m_thumbnailGeneration;
    }
    announceDrive(path);
    const QByteArray name = path.toUtf8();
    const int handle =
        core->openThumbnailSession(name.constData(), itemType, titleNumber, width, height, 0, 0, 0);
    {
        std::lock_guard lock(m_stateMutex);
        if (generation == m_thumbnailGeneration) {
            m_thumbnailHandle = handle;
            return handle;
        }
    }
    // Closed, or opened anew, while this one was opening.
    core->closeThumbnailSession(handle);
    return 0;
}

void QPlayer::closeThumbnails()
{
    int handle = 0;
    {
        std::lock_guard lock(m_stateMutex);
        ++m_thumbnailGeneration;
        handle = m_thumbnailHandle.exchange(0);
    }
    if (!handle)
        return;
    if (auto core = m_core.use())
        core->closeThumbnailSession(handle);
}

QImage QPlayer::grabThumbnail(int positionMs, bool exact, int *shownMs)
{
    const int handle = m_thumbnailHandle;
    auto core = m_core.use();
    if (!handle || !core)
        return {};
    const libvp::VDPicture *picture = nullptr;
    if (!core->grabThumbnail(handle, positionMs, exact ? exactFrame : 0, &picture) || !picture)
        return {};
    QImage image;
    const qint64 needed = qint64(picture->width) * picture->height * 4;
    if (picture->data && picture->format == libvp::VD_Picture_Jpeg)
        image = QImage::fromData(picture->data, picture->size, "JPEG");
    else if (picture->data && picture->width > 0 && picture->height > 0 && picture->size >= needed)
        image = QImage(picture->data, picture->width, picture->height, picture->width * 4,
                       QImage::Format_RGBA8888)
                    .copy();
    if (shownMs)
        *shownMs = picture->positionMs;
    core->releasePicture(picture);
    return image;
}

PlayerPicture QPlayer::grabPicture(const QByteArray &requestJson)
{
    PlayerPicture answer;
    auto core = m_core.use();
    if (!core)
        return answer;
    const libvp::VDPicture *picture = core->grabPicture(requestJson.constData());
    if (!picture)
        return answer;
    if (picture->data && picture->size > 0 && picture->format >= 0) {
        answer.data = QByteArray(reinterpret_cast<const char *>(picture->data), picture->size);
        answer.width = picture->width;
        answer.height = picture->height;
        answer.format = picture->format;
        answer.positionMs = picture->positionMs;
    }
    core->releasePicture(picture);
    return answer;
}

PlayerDisc QPlayer::prepareDisc(const QString &path, int itemType)
{
    PlayerDisc disc;
    announceDrive(path);
    auto core = m_core.use();
    if (!core)
        return disc;
    const QByteArray name = path.toUtf8();
    std::vector<libvp::VDDiscTitle> titles(usualTitleCount);
    int count = 0;
    const auto read = [&] {
        return core->prepareDisc(name.constData(), itemType, titles.data(), static_cast<int>(titles.size()),
                                 &count, &disc.mainTitle);
    };
    disc.isValid = read();
    if (disc.isValid && count > usualTitleCount) {
        titles.resize(static_cast<std::size_t>(qMin(count, mostTitles)));
        disc.isValid = read();
    }
    if (!disc.isValid)
        return disc;
    titles.resize(static_cast<std::size_t>(qBound(0, count, static_cast<int>(titles.size()))));
    for (const libvp::VDDiscTitle &title : titles)
        disc.titles.append(
            {title.number, title.durationMs, title.chapterCount, PlayerText::fixedText(title.name)});
    return disc;
}

int QPlayer::sourceForm(const QString &path)
{
    announceDrive(path);
    const QByteArray name = path.toUtf8();
    return from(m_core, 0, [&name](libvp::IVDEngineCore &core) { return core.sourceForm(name.constData()); });
}

PlayerDiscInfo QPlayer::discDisplayInfo(const QString &drive)
{
    PlayerDiscInfo answer;
    announceDrive(drive);
    const QByteArray name = driveName(drive);
    onTool([&](libvp::IVDPlayTool &tool) {
        libvp::VDDiscDisplayInfo info;
        if (!tool.discDisplayInfo(name.constData(), &info))
            return;
        answer.isValid = true;
        answer.discType = info.discType;
        answer.hasMedia = info.hasMedia != 0;
        answer.sizeBytes = info.sizeBytes;
        answer.volumeName = PlayerText::fixedText(info.volumeName);
    });
    return answer;
}

bool QPlayer::eject(char drive)
{
    announceDrive(QString(QLatin1Char(drive)));
    return fromTool(false, [drive](libvp::IVDPlayTool &tool) { return tool.eject(drive); });
}

int QPlayer::discState(char drive)
{
    announceDrive(QString(QLatin1Char(drive)));
    return fromTool(0, [drive](libvp::IVDPlayTool &tool) { return tool.discState(drive); });
}

bool QPlayer::startBackup(const QString &source, const QString &target, int option)
{
    announceDrive(source);
    const QByteArray origin = driveName(source);
    const QByteArray to = target.toUtf8();
    return from(m_core, false, [&](libvp::IVDEngineCore &core) {
        return core.startBackup(origin.constData(), to.constData(), option);
    });
}

void QPlayer::stopBackup(const QString &drive)
{
    const QByteArray name = driveName(drive);
    if (auto core = m_core.use())
        core->stopBackup(name.constData());
}

double QPlayer::backupProgress(const QString &drive)
{
    const QByteArray name = driveName(drive);
    return from(m_core, -1.0,
                [&name](libvp::IVDEngineCore &core) { return core.backupProgress(name.constData()); });
}

bool QPlayer::isBackupFinished(const QString &drive)
{
    const QByteArray name = driveName(drive);
    return from(m_core, false,
                [&name](libvp::IVDEngineCore &core) { return core.isBackupFinished(name.constData()); });
}

bool QPlayer::isBackupFailed(const QString &drive)
{
    const QByteArray name = driveName(drive);
    return from(m_core, false,
                [&name](libvp::IVDEngineCore &core) { return core.isBackupFailed(name.constData()); });
}
