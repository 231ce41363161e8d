// Set-up of the engine, and the life of a play.
#include "QPlayer.h"

#include "EngineProperties.h"
#include "NotificationScope.h"
#include "SpeedTable.h"

#include "core/SettingsManager.h"
#include "platform/DriveLetters.h"

#include <QCoreApplication>
#include <QDebug>
#include <QThread>

namespace {

// The program's player and where it takes its engine from.
struct SharedPlayer {
    std::mutex mutex;
    QPlayer *player = nullptr;
    QPlayer::LoaderFactory loaderFactory = [] { return std::make_unique<LibraryEngineLoader>(); };
};

SharedPlayer &sharedPlayer()
{
    static SharedPlayer shared;
    return shared;
}

QString driveTarget(QChar letter)
{
    const std::optional<Drive> drive = DriveLetters::instance()->drive(letter);
    return drive ? drive->target : QString();
}

} // namespace

QPlayer *QPlayer::instance()
{
    SharedPlayer &shared = sharedPlayer();
    std::lock_guard lock(shared.mutex);
    if (!shared.player) {
        shared.player = new QPlayer(shared.loaderFactory(), SettingsManager::instance());
        // The first caller may be a worker that ends soon.
        if (QCoreApplication *application = QCoreApplication::instance())
            shared.player->moveToThread(application->thread());
    }
    return shared.player;
}

void QPlayer::setLoaderFactory(LoaderFactory factory)
{
    SharedPlayer &shared = sharedPlayer();
    std::lock_guard lock(shared.mutex);
    shared.loaderFactory = std::move(factory);
}

void QPlayer::releaseInstance()
{
    SharedPlayer &shared = sharedPlayer();
    QPlayer *ended = nullptr;
    {
        std::lock_guard lock(shared.mutex);
        ended = std::exchange(shared.player, nullptr);
    }
    delete ended;
}

void QPlayer::registerMetaTypes()
{
    qRegisterMetaType<vdFileInfo>("vdFileInfo");
    qRegisterMetaType<vdStopPlayInfo>("vdStopPlayInfo");
    qRegisterMetaType<QPlayerStatus>("QPlayerStatus");
    qRegisterMetaType<QPlayerStatus>("QPlayer::QPlayerStatus");
    qRegisterMetaType<QPlayerMetaType>("QPlayerMetaType");
    qRegisterMetaType<QPlayerMetaType>("QPlayer::QPlayerMetaType");
    qRegisterMetaType<VD_ErrorCallbackType>("VD_ErrorCallbackType");
    qRegisterMetaType<VD_OPTRA_DISC_NOTIFY_TYPE>("VD_OPTRA_DISC_NOTIFY_TYPE");
    qRegisterMetaType<VD_OPTRA_DISC_ERROR_TYPE>("VD_OPTRA_DISC_ERROR_TYPE");
    qRegisterMetaType<VD_SeekState>("VD_SeekState");
}

QPlayer::QPlayer(std::unique_ptr<IEngineLoader> loader, SettingsManager *settings)
    : m_loader(std::move(loader))
    , m_settings(settings)
    , m_driveResolver(driveTarget)
    , m_speedValues(SpeedTable::values())
    , m_speedTexts(SpeedTable::texts())
{
    registerMetaTypes();
    readConfiguration();
    loadEngine();
}

QPlayer::~QPlayer()
{
    m_hasVideoParent = false;
    stop();
    closeThumbnails();
    (void)m_tool.take();
    m_tool.drain();
    libvp::IVDEngineCore *core = m_core.take();
    m_core.drain();
    if (core)
        m_loader->releaseFunction()(core);
    m_loader->unload();
}

void QPlayer::loadEngine()
{
    if (!m_loader->load()) {
        failRenderer(m_loader->errorText());
        return;
    }
    libvp::IVDEngineCore *core = m_loader->createFunction()(this, this);
    if (!core) {
        failRenderer(QStringLiteral("the library made no engine"));
    } else if (!core->initialise()) {
        m_loader->releaseFunction()(core);
        failRenderer(QStringLiteral("the engine did not initialise"));
    } else {
        m_core.set(core);
    }
}

void QPlayer::failRenderer(const QString &reason)
{
    m_rendererFailed = true;
    qInfo().noquote() << "[Engine] cannot play here:" << reason;
}

void QPlayer::setVideoParent(QWidget *widget, WId nativeWindow)
{
    if (!widget || !nativeWindow) {
        qInfo() << "[ASSERT] the video parent is null";
        return;
    }
    const qreal scale = widget->devicePixelRatioF();
    m_surfaceWidth = qRound(widget->width() * scale);
    m_surfaceHeight = qRound(widget->height() * scale);
    m_nativeWindow = reinterpret_cast<void *>(nativeWindow);
    m_hasVideoParent = true;
    if (m_tool.isSet())
        qInfo() << "[Engine] the video parent came after the output's set-up and has no effect";
}

bool QPlayer::ensureTool()
{
    if (m_rendererFailed)
        return false;
    if (m_tool.isSet())
        return true;
    // A set-up that waits for a notification, and a notification that waits for the set-up, would never end.
    if (!m_hasVideoParent || NotificationScope::active())
        return false;
    std::lock_guard lock(m_toolMutex);
    if (m_rendererFailed)
        return false;
    return m_tool.isSet() || createTool();
}

bool QPlayer::createTool()
{
    const auto core = m_core.use();
    if (!core)
        return false;
    m_windowBlock[0] = m_nativeWindow;
    libvp::IVDPlayTool *tool = core->createPlayTool(0, this, this);
    if (!tool || !tool->isValid()) {
        failRenderer(QStringLiteral("the output could not be set up"));
        return false;
    }
    tool->setUpFlag73(1);
    tool->setUpFlag74(1);
    tool->setBootValue(0);
    tool->set3DEngine(false);
    m_tool.set(tool);
    return true;
}

bool QPlayer::putOff(const char *what, std::function<void()> command)
{
    if (!NotificationScope::active())
        return false;
    qInfo() << "[Engine] asked during a notification, follows it:" << what;
    QMetaObject::invokeMethod(this, std::move(command), Qt::QueuedConnection);
    return true;
}

void QPlayer::openFile(int startSeconds)
{
    StreamChoice choice;
    const auto prefer = [&choice, startSeconds](bool wanted) {
        if (!wanted)
            return libvp::VD_DefaultChoice;
        choice.startSeconds = qMax(0, startSeconds);
        return libvp::VD_ResumeChoice;
    };
    choice.audio = prefer(m_audioPrefer);
    choice.subtitle = prefer(m_subtitlePrefer);
    choice.angle = prefer(m_anglePrefer);
    open(choice);
}

void QPlayer::openFileWithStreams(int value)
{
    StreamChoice choice;
    choice.audio = value == libvp::VD_DefaultChoice ? libvp::VD_ResumeChoice : value;
    choice.subtitle = choice.audio;
    choice.angle = choice.audio;
    open(choice);
}

void QPlayer::open(const StreamChoice &choice)
{
    if (putOff("open", [this, choice] { open(choice); }))
        return;
    if (!m_hasVideoParent) {
        qInfo() << "[ASSERT] open without a video parent";
        return;
    }
    if (!ensureTool())
        return;

    std::lock_guard opening(m_openMutex);
    const QString path = source();
    m_fileItem.reset();
    m_fileItem.m_itemType = m_sourceType;
    m_fileItem.m_path = path.toStdString();
    m_options.reset();
    m_options.setTitleNumber(m_titleNumber);
    m_options.m_startSeconds = choice.startSeconds;
    m_options.m_audioStream = choice.audio;
    m_options.m_subtitleStream = choice.subtitle;
    m_options.m_angle = choice.angle;
    {
        std::lock_guard lock(m_stateMutex);
        m_lastCodec.clear();
        m_videoMeta.clear();
        m_rangeMeta.clear();
        m_furtherMeta.clear();
    }
    m_loggedSecond = -1;
    announceDrive(path);

    bool accepted = false;
    if (makePlay()) {
        // A stop from now on either finds the flag or leaves nothing to open.
        m_opening = true;
        if (auto play = m_play.use())
            accepted = play->open(&m_fileItem, &m_options, 0);
        m_opening = false;
    }
    qInfo().nospace() << "[Open File] QPlayer open file result : " << accepted;
}

bool QPlayer::makePlay()
{
    std::string audio;
    std::string subtitle;
    {
        std::lock_guard lock(m_stateMutex);
        audio = m_preferAudio;
        subtitle = m_preferSubtitle;
    }
    std::lock_guard lock(m_transportMutex);
    endPlay();
    const auto tool = m_tool.use();
    libvp::IVDPlay *play = nullptr;
    if (!tool || !tool->createPlay(this, 0, &play) || !play)
        return false;
    tool->setPreferredAudioLanguage(audio.empty() ? nullptr : audio.c_str());
    tool->setPreferredSubtitleLanguage(subtitle.empty() ? nullptr : subtitle.c_str());
    m_play.set(play);
    return true;
}

void QPlayer::stop()
{
    if (putOff("stop", [this] { stop(); }))
        return;
    std::lock_guard lock(m_transportMutex);
    endPlay();
}

void QPlayer::endPlay()
{
    libvp::IVDPlay *play = m_play.take();
    if (!play)
        return;
    const auto tool = m_tool.use();
    const bool wasOpening = m_opening;
    if (tool)
        tool->setIntProperty(EngineProperties::StereoscopicMode, EngineProperties::StereoscopicOff);
    play->close();
    m_play.drain();
    // The open may have gone in after the close.
    if (wasOpening)
        play->close();
    if (tool)
        tool->releasePlay(&play);
}
