#include "NormalPlayControl.h"

#include "core/CommunicationManager.h"
#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "online/PlayInfoStatisticsHelper.h"
#include "playcontrol/DiscEventRule.h"
#include "playcontrol/EndRule.h"
#include "playcontrol/ErrorNote.h"
#include "playcontrol/PlayFailure.h"
#include "playcontrol/ResumeRule.h"
#include "playcontrol/StatisticName.h"
#include "player/DeferredSetup.h"
#include "player/PreferredLanguages.h"

#include <QDebug>
#include <QFileInfo>
#include <QTimer>

namespace {

constexpr int kTracksAfterMs = 1000;
constexpr int kNoteAfterMs = 1000;
constexpr char kStatistics[] = "PlayInfo";
constexpr char kVideo[] = "Video";
constexpr char kAudio[] = "Audio";
constexpr char kPlayMode[] = "PC";

} // namespace

NormalPlayControl::NormalPlayControl(SettingsManager &settings, DeferredSetup &setUp, PlaySourcePath paths,
                                     QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    , m_setUp(setUp)
    , m_paths(std::move(paths))
    , m_positions(settings)
    , m_playThread(&NormalPlayControl::playFunction, this)
    , m_stopThread(&NormalPlayControl::stopFunction, this)
{
    connect(&m_presence, &FilePresence::checked, this, &NormalPlayControl::followEnd);
}

NormalPlayControl::~NormalPlayControl()
{
    shutDown();
}

void NormalPlayControl::connectPlayer(QPlayer *player)
{
    m_player = player;
    m_lastStop.connectPlayer(player);
    connect(player, &QPlayer::sig_playStatusChanged, this, &NormalPlayControl::slot_responsePlayState);
    connect(player, &QPlayer::sig_stopInfoChanged, this, &NormalPlayControl::slot_responseStopInfo);
    connect(player, &QPlayer::sig_videoInfoChanged, this, &NormalPlayControl::slot_responseVideoInfo);
    connect(player, &QPlayer::sig_playFailChanged, this, &NormalPlayControl::slot_responsePlayFail);
    connect(player, &QPlayer::sig_errorOccured, this, &NormalPlayControl::slot_solveError);
    connect(player, &QPlayer::sig_DiscEventOccured, this, &NormalPlayControl::slot_responseDiscEvent);
}

bool NormalPlayControl::play(const QString &path, int title)
{
    if (m_isClosing || m_setUp.hasFailed() || m_playThread.isRunning()) {
        qInfo().noquote() << "[Play control] request dropped:" << path;
        return false;
    }
    m_presence.check({}); // whatever was to follow the last source
    const PlaySource source = m_paths.resolve(path);
    m_askedPath = path;
    m_currentPath = source.path;
    m_displayName = source.displayName;
    // The queue knows a source by what was asked for, with its scheme or the title of its cue sheet.
    const int queueTitle = m_queueTitle ? m_queueTitle(path) : -1;
    m_titleNumber = title != -1 ? title : queueTitle;
    m_sourceKind = source.kind;
    m_hasSource = true;

    ++m_sourceNumber;

    m_stored = m_positions.read(
        ResumeRule::storeKey(m_currentPath, source.kind == PlaySource::Disc ? m_displayName : QString()));
    m_resumePending = true;
    m_resumeSeconds = ResumeRule::startSeconds(m_positions.remembersPosition(), m_stored.seconds);
    PlayInfoStatisticsHelper::instance()->note(QLatin1String(kStatistics), QStringLiteral("beginPlay"),
                                               QString::number(source.kind));

    m_order = {m_currentPath,
               m_sourceKind,
               m_titleNumber,
               source.cueTitle,
               m_resumeSeconds,
               PreferredLanguages::ofSound(m_settings),
               PreferredLanguages::ofSubtitles(m_settings)};
    // The window is changed while the source is being opened.
    m_setUp.start();
    m_playThread.start(QThread::InheritPriority);
    emit sourceAccepted(m_displayName);
    return true;
}

void NormalPlayControl::playFunction(void *self)
{
    static_cast<NormalPlayControl *>(self)->runOrder();
}

void NormalPlayControl::stopFunction(void *self)
{
    static_cast<NormalPlayControl *>(self)->m_player->stop();
}

// On the play thread.
void NormalPlayControl::runOrder()
{
    // A stop that was asked for before this request must not end it.
    m_stopThread.wait();
    if (!m_setUp.waitUntilDone()) {
        QMetaObject::invokeMethod(this, &NormalPlayControl::finishEnded, Qt::QueuedConnection);
        return;
    }
    QPlayer &player = *m_setUp.player();
    PlayRunner::close(player);
    QMetaObject::invokeMethod(
        this, [this] { emit waitingChanged(true); }, Qt::QueuedConnection);
    PlayRunner::open(player, m_order);
}

void NormalPlayControl::shutDown()
{
    if (m_isClosing)
        return;
    m_isClosing = true;
    if (m_player != nullptr) {
        disconnect(m_player, nullptr, this, nullptr);
        // No queued slot runs any more, but where this source was left is still to be kept.
        m_lastStop.begin();
        // Also ends an open that hangs on its disc.
        m_player->stop();
    }
    m_playThread.wait();
    m_stopThread.wait();
    if (m_player != nullptr)
        m_player->stop();
    m_hasSource = false;
    if (const auto last = m_lastStop.end())
        m_positions.record(*last, last->path.size() == 1 ? m_displayName : QString());
}

void NormalPlayControl::slot_stopLater()
{
    QTimer::singleShot(0, this, [this] {
        stopOnThread();
        finishEnded();
    });
}

void NormalPlayControl::slot_onlyStopLater()
{
    QTimer::singleShot(0, this, &NormalPlayControl::stopOnThread);
}

// The engine may take its time to close a disc; the window does not wait for it.
void NormalPlayControl::stopOnThread()
{
    if (m_player != nullptr && !m_isClosing && !m_stopThread.isRunning())
        m_stopThread.start(QThread::InheritPriority);
}

void NormalPlayControl::finishEnded()
{
    m_presence.check({});
    m_hasSource = false;
    m_resumePending = false;
    emit waitingChanged(false);
    emit idle();
    emit selectViewWanted();
}

void NormalPlayControl::slot_responsePlayState(QPlayer::QPlayerStatus status)
{
    switch (status) {
    case QPlayer::QPlayerStatus_Playing:
        emit waitingChanged(false);
        m_settings.setValue(QLatin1String(SettingsKeys::PC_Played), true);
        emit playing();
        QTimer::singleShot(0, CommunicationManager::instance(), [] {
            emit CommunicationManager::instance()->SIG_sendMsgToUpdate(SendMsgType::Close);
        });
        break;
    case QPlayer::QPlayerStatus_Stopped:
    case QPlayer::QPlayerStatus_Failed:
        emit idle();
        break;
    case QPlayer::QPlayerStatus_Ended:
        emit idle();
        endReached();
        break;
    default:
        break;
    }
}

void NormalPlayControl::endReached()
{
    if (!m_closeAtEnd)
        slot_onlyStopLater();
    const QString nextEpisode = m_nextEpisode && !m_closeAtEnd ? m_nextEpisode() : QString();
    if (nextEpisode.isEmpty())
        followEnd(nextEpisode, false);
    else
        m_presence.check({nextEpisode}); // its drive may sleep
}

void NormalPlayControl::followEnd(const QString &nextEpisode, bool isThere)
{
    const EndRule::State state{m_closeAtEnd, nextEpisode};
    switch (EndRule::after(state, [isThere](const QString &) { return isThere; })) {
    case EndRule::Next::CloseWindow:
        emit closeWanted();
        break;
    case EndRule::Next::PlayNextEpisode:
        QTimer::singleShot(0, this, [this, nextEpisode] { play(nextEpisode); });
        break;
    case EndRule::Next::AskQueue:
        QTimer::singleShot(0, this, &NormalPlayControl::queueTurn);
        break;
    }
}

void NormalPlayControl::slot_responseStopInfo(vdStopPlayInfo info)
{
    const PositionStore::Stop stop =
        LastStop::stopOf(info, m_player != nullptr ? m_player->lastFrame() : QImage());
    m_positions.record(stop, stop.path.size() == 1 ? m_displayName : QString());
    PlayInfoStatisticsHelper::instance()->note(
        QLatin1String(kStatistics), StatisticName::stop(m_player->fileTypeText(), m_player->mediaTypeText()),
        QString::number(ResumeRule::secondsOf(stop.positionMs)));
    QTimer::singleShot(0, this, [this] {
        // The stop may belong to the source before the one that is being opened.
        if (!m_playThread.isRunning())
            emit waitingChanged(false);
    });
}

void NormalPlayControl::slot_responseVideoInfo(vdFileInfo info)
{
    m_mediaKind = QLatin1String(info.audioOnly != 0 ? kAudio : kVideo);
    qInfo() << "[Play control] Enter slot_responseVideoInfo";
    const bool isVideo = info.audioOnly == 0;
    PlayInfoStatisticsHelper::instance()->note(QLatin1String(kStatistics), QStringLiteral("Success"),
                                               QStringLiteral("%1x%2 %3")
                                                   .arg(info.width)
                                                   .arg(info.height)
                                                   .arg(QString::fromUtf8(info.codec).toLower()));
    m_player->setAuthorInfo(0);
    const MenuCase::Source source = menuSource(info);
    m_isDisc = source.disc != MenuCase::Disc::None;
    emit sourceOpened(isVideo);

    const bool byMenu = MenuCase::playsByMenu(source, m_settings);
    emit seekControlChanged(MenuCase::seekControl(byMenu));
    const QString key = QLatin1String(SettingsKeys::PC_RememberPosition);
    const auto remember =
        m_settings.contains(key) ? std::optional<bool>(m_settings.value(key).toBool()) : std::nullopt;
    if (ResumeRule::showsNote(isVideo, remember, byMenu) && m_titleNumber == -1)
        laterForThisSource(kNoteAfterMs, [this] { emit resumeNoteDue(); });
    laterForThisSource(kTracksAfterMs, [this] { slot_setupLastPositionAudioSub(); });
    if (MenuCase::showsBdavNote(source, m_settings))
        emit bdavNoteDue();
}

MenuCase::Source NormalPlayControl::menuSource(const vdFileInfo &info) const
{
    MenuCase::Source source;
    source.titleNumber = m_titleNumber;
    switch (info.sourceForm) {
    case libvp::VD_Source_ImageDvd:
    case libvp::VD_Source_FolderDvd:
    case libvp::VD_Source_DiscDvd:
        source.disc = MenuCase::Disc::Dvd;
        break;
    case libvp::VD_Source_ImageBluRay:
    case libvp::VD_Source_FolderBluRay:
    case libvp::VD_Source_DiscBluRay:
        source.disc = MenuCase::Disc::BluRay;
        source.isBdav = (info.flags & libvp::VD_Flag_Bdav) != 0;
        break;
    default:
        break;
    }
    return source;
}

void NormalPlayControl::laterForThisSource(int milliseconds, std::function<void()> action)
{
    QTimer::singleShot(milliseconds, this, [this, number = m_sourceNumber, action = std::move(action)] {
        if (m_hasSource && number == m_sourceNumber)
            action();
    });
}

void NormalPlayControl::slot_setupLastPositionAudioSub()
{
    if (!m_resumePending || !m_hasSource || m_player == nullptr)
        return;
    const int audio = m_positions.read(m_currentPath).audioIndex;
    if (m_resumeSeconds > 0 && audio > 0)
        m_player->setAudioTrack(audio);
    m_resumePending = false;
}

void NormalPlayControl::slot_responsePlayFail(int errCode, vdFileInfo info)
{
    Q_UNUSED(info)
    emit waitingChanged(false);
    qInfo().noquote() << PlayFailure::logLine(errCode);
    emit failureToTell(errCode);
}

void NormalPlayControl::failureRead(int errCode)
{
    const QStringList lines = PlayFailure::reportLines(errCode, 0, QLatin1String(kPlayMode));
    for (const QString &line : lines)
        qInfo().noquote() << line;
    slot_stopLater();
}

void NormalPlayControl::slot_solveError(VD_ErrorCallbackType type)
{
    qInfo().noquote() << ErrorNote::logLine(int(type));
    const ErrorNote::Row *row = ErrorNote::rowOf(int(type));
    if (row == nullptr)
        return;
    if (ErrorNote::isShown(*row, m_settings))
        emit noteToTell(int(type));
    if (row->stopsPlay)
        slot_stopLater();
}

void NormalPlayControl::slot_responseDiscEvent(char cDrive, VD_OPTRA_DISC_NOTIFY_TYPE NotifyType)
{
    if (DiscEventRule::stopsPlay(cDrive, int(NotifyType), m_currentPath))
        slot_stopLater();
}
