#include "StartupServices.h"

#include "BackgroundStart.h"
#include "Banner.h"
#include "LibraryStart.h"
#include "MaintenanceRuns.h"
#include "ModeSelectView.h"
#include "ScreenSaverRule.h"
#include "TerminationSignal.h"
#include "UpdateRule.h"

#include "core/ApplicationInfoManager.h"
#include "core/CommonInfoManager.h"
#include "core/LanguageManager.h"
#include "core/LogHandler.h"
#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "core/SingleApplication.h"
#include "core/SingleInstance.h"
#include "keys/AppEventFilter.h"
#include "library/MediaServerManager.h"
#include "library/ViewTypeManager.h"
#include "online/AdvertismentManagerEx.h"
#include "online/PlayInfoStatisticsHelper.h"
#include "online/UpdateManager.h"
#include "online/WebServiceManager.h"
#include "pc/NormalMainWindow.h"
#include "pictures/PictureManager.h"
#include "platform/Pointer.h"
#include "platform/ScreenSaver.h"
#include "platform/SystemLanguage.h"
#include "platform/WindowSystem.h"
#include "player/EngineLoader.h"
#include "player/QPlayer.h"
#include "shell/FileAssociation.h"
#include "tv/TvFileSystemManager.h"
#include "tv/TvMainWindow.h"
#include "tv/TvScreenManager.h"
#include "ui/StyleLoader.h"
#include "visual/pcmParser.h"

#include <QDebug>
#include <QScreen>
#include <QSysInfo>
#include <QTimer>

#include <cmath>

namespace {

constexpr char kProgramFileName[] = "Quorin Player 6.exe";
constexpr char kVersion[] = "6.1.0.3";
constexpr char kChannel[] = "Official";
constexpr int kBuildYear = 2020;
constexpr int kBuildMonth = 7;
constexpr int kBuildDay = 15;
// The window and the first picture of a film go before the server.
constexpr int kLibraryDelayMs = 1000;

QString resourceFile()
{
    return QLatin1String(StyleLoader::kResourceFile);
}

ProxyConfiguration storedProxy()
{
    const auto *store = SettingsManager::instance();
    return {store->proxyEnable(), store->proxyType(),     store->proxyHost(),
            store->proxyPort(),   store->proxyUserName(), store->proxyPasswd()};
}

} // namespace

StartupServices::StartupServices(int &argc, char **argv)
    : m_argc(argc)
    , m_argv(argv)
{
}

StartupServices::~StartupServices() = default;

// ---- before the application object

void StartupServices::installLogHandler()
{
    ::installLogHandler();
}

void StartupServices::applyScreenSaver()
{
    if (ScreenSaverRule::staysOff(*SettingsManager::instance()))
        ScreenSaver::disable();
    else
        ScreenSaver::enable();
}

void StartupServices::showPointer()
{
    Pointer::show();
}

void StartupServices::handIdentity()
{
    auto *info = ApplicationInfoManager::instance();
    info->setProgramFileName(QLatin1String(kProgramFileName));
    info->setVersion(QLatin1String(kVersion));
    info->setBuildDate(kBuildYear, kBuildMonth, kBuildDay);
    info->setChannel(QLatin1String(kChannel));
}

void StartupServices::writeVersion()
{
    SettingsManager::instance()->setValue(QLatin1String(SettingsKeys::Version), QLatin1String(kVersion));
}

QStringList StartupServices::createApplication()
{
    WindowSystem::choose();
    // Qt makes the windows' class of the one and tells the desktop the other.
    QCoreApplication::setApplicationName(ApplicationInfoManager::desktopName());
    QGuiApplication::setDesktopFileName(ApplicationInfoManager::desktopName());
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // A native child must not make its ancestors and siblings native: the picture alone has a window of its
    // own.
    QCoreApplication::setAttribute(Qt::AA_DontCreateNativeWidgetSiblings);
    // No window holds OpenGL children: without this Qt reads the whole OpenGL stack before it shows the
    // first, which costs a quarter of the start and 50 MB.
    QCoreApplication::setAttribute(Qt::AA_ForceRasterWidgets);
    // Beside all that follows: the engine stands on some hundred libraries.
    LibraryEngineLoader::warmUp();
    m_application = std::make_unique<SingleApplication>(m_argc, m_argv);
    WindowSystem::endWithDisplay();
    m_application->setOutsideSourceSink([] {
        PlayInfoStatisticsHelper::instance()->setSource(PlayInfoStatisticsHelper::Source::OutOfPlayer);
    });
    watchTermination();
    const QStringList arguments = QCoreApplication::arguments();
    m_libraryFolder = CommandLine(arguments).libraryFolder();
    return arguments;
}

void StartupServices::watchTermination()
{
    m_termination = std::make_unique<TerminationSignal>();
    QObject::connect(m_termination.get(), &TerminationSignal::requested, m_application.get(), [this] {
        QApplication::closeAllWindows();
        if (m_window && m_window->isVisible())
            m_window->close();
    });
}

void StartupServices::loadLanguage()
{
    auto *store = SettingsManager::instance();
    store->setSystemLanguageReader(systemLanguage);
    LanguageManager::instance()->load(store->language());
}

// ---- maintenance

MaintenanceRuns StartupServices::maintenance()
{
    const auto *info = ApplicationInfoManager::instance();
    return {*SettingsManager::instance(),
            {info->dataFolder(), info->configurationFile(), info->updateTempLocation(),
             ApplicationInfoManager::productName()},
            {[](bool enable) {
                 // An install registers the program with its handler.
                 if (enable)
                     FileAssociation::RegisterApplication();
                 FileAssociation::RegisterAutoplay(enable);
             },
             [] {
                 FileAssociation::RestoreExtensions(FileAssociation::associatedExtensions());
                 FileAssociation::UnregisterApplication();
             },
             [] { MediaServerManager::killServerProcess(); }}};
}

void StartupServices::runInstall(bool joinPlan)
{
    maintenance().install(joinPlan);
}

void StartupServices::runUninstall()
{
    maintenance().uninstall();
}

void StartupServices::runFullUninstall()
{
    maintenance().fullUninstall();
}

// ---- the first copy

bool StartupServices::isFirstCopy(const QStringList &arguments)
{
    m_guard = std::make_unique<SingleInstance>();
    return m_guard->start(*m_application, arguments) == SingleInstance::Outcome::First;
}

void StartupServices::writeBanner(const QStringList &arguments)
{
    BannerFacts facts;
    facts.now = QDateTime::currentDateTime();
    facts.kernelVersion = QSysInfo::kernelVersion();
    facts.productName = QSysInfo::prettyProductName();
    facts.resolution = QGuiApplication::primaryScreen()->geometry().size();
    facts.scaleFactor = ApplicationInfoManager::instance()->scaleFactor();
    facts.playerVersion = ApplicationInfoManager::instance()->version();
    facts.arguments = arguments;
    const QStringList lines = Banner::lines(facts);
    for (const QString &line : lines)
        qInfo().noquote() << line;
}

void StartupServices::createWebServices()
{
    (void)WebServiceManager::instance();
}

void StartupServices::createAdvertising()
{
    const auto *info = ApplicationInfoManager::instance();
    auto *advertising = AdvertismentManagerEx::instance();
    advertising->setLanguage(SettingsManager::instance()->language());
    advertising->setPaths({info->dataFolder(), info->tempFolder()});
}

void StartupServices::noteScreenDpi()
{
    const qreal dpi = QGuiApplication::primaryScreen()->logicalDotsPerInch();
    ApplicationInfoManager::instance()->setScreenDpi(int(std::lround(dpi)));
}

void StartupServices::registerResources()
{
    StyleLoader::loadResourceFile(resourceFile());
}

void StartupServices::markStartedFromOutside()
{
    PlayInfoStatisticsHelper::instance()->setSource(PlayInfoStatisticsHelper::Source::OutOfPlayer);
}

int StartupServices::launchMode()
{
    return SettingsManager::instance()->launchMode();
}

std::optional<bool> StartupServices::askMode()
{
    StyleLoader::applySelectStyle(resourceFile());
    // The dialog is the only window: its end must not be taken for the end of the program.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    ModeSelectView view(*SettingsManager::instance());
    view.adjustSize();
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    view.move(available.center() - QRect(QPoint(), view.size()).center());
    view.exec();
    QGuiApplication::setQuitOnLastWindowClosed(true);
    if (!view.isChosen())
        return std::nullopt;
    return view.isPcChosen();
}

void StartupServices::startLibrary()
{
    m_library = std::make_unique<LibraryStart>(
        []() -> MediaServerManager & { return *MediaServerManager::instance(); });
    const auto tell = [this](const QString &word) {
        if (m_library)
            m_library->setLanguage(word);
    };
    LanguageManager::instance()->setMediaServerLanguageSink(tell);
    tell(LanguageManager::localeWord(SettingsManager::instance()->language()));
    ViewTypeManager::instance()->setPicturesDropper([] { PictureManager::instance()->clearAll(); });
    QTimer::singleShot(kLibraryDelayMs, m_library.get(), [this] { m_library->begin(m_libraryFolder); });
}

void StartupServices::startBackgroundThread()
{
    startLibrary();
    auto *store = SettingsManager::instance();
    BackgroundStart::instance()->start(
        {storedProxy, [](const ProxyConfiguration &proxy) { WebServiceManager::instance()->setProxy(proxy); },
         [] {
             WebServiceManager::instance()->reportUsage(CommonInfoManager::instance()->usageDataAllowed());
         },
         [store] { return UpdateRule::wantsCheck(*store); },
         [] { UpdateManager::instance()->check(UpdateManager::Flag::Auto); }});
}

// ---- the windows

void StartupServices::openPcMode(const WindowStart &start)
{
    qInfo().noquote() << "[Process] Player Mode is PC Mode ";
    ApplicationInfoManager::instance()->setRunMode(ApplicationInfoManager::PcMode);
    StyleLoader::applyPcStyle(resourceFile());
    const bool showNow = !(start.hasFile && (start.flags & CommandLine::FullScreenFlag) != 0);
    auto *window = new NormalMainWindow(nullptr, showNow);
    m_window = window;
    QObject::connect(m_application.get(), &SingleApplication::signal_playOutFile, window,
                     qOverload<QString>(&NormalMainWindow::slot_playSource));
    QObject::connect(m_application.get(), &SingleApplication::signal_otherWantRunning, window,
                     &NormalMainWindow::slot_activeWindow);
    auto *filter = AppEventFilter::instance();
    filter->setIsPcMode(true);
    filter->setMouseMoveEnabled(true);
    filter->setMainWindow(window, [window](int steps) { window->slot_changeVolume(steps); });
    m_application->installEventFilter(filter);
    if (start.hasFile) {
        window->applyStartFlags(start.flags);
        window->slot_playSource(start.file);
    }
}

void StartupServices::openTvMode(const WindowStart &start)
{
    qInfo().noquote() << "[Process] Player Mode is TV Mode ";
    ApplicationInfoManager::instance()->setRunMode(ApplicationInfoManager::TvMode);
    StyleLoader::applyTvStyle(resourceFile());
    qInfo() << "[TV_CheckTime] Init skin end.";
    auto *window = new TvMainWindow;
    m_window = window;
    qInfo() << "[TV_CheckTime] end load mainwindow";
    QObject::connect(m_application.get(), &SingleApplication::signal_playOutFile, window,
                     &TvMainWindow::SLOT_doubleClickFileToPlay);
    m_application->installNativeEventFilter(TvFileSystemManager::instance());
    auto *filter = AppEventFilter::instance();
    filter->setIsPcMode(false);
    m_application->installEventFilter(filter);
    (void)TvScreenManager::instance();
    window->show();
    if (start.hasFile) {
        if ((start.flags & CommandLine::CloseAtEndFlag) != 0)
            window->setExitAfterPlaying(true);
        window->playAtOnce(start.file);
    }
    TvFileSystemManager::instance()->startScan();
    qInfo() << "[TV_CheckTime] Load TV end.";
}

void StartupServices::logInitCompleted()
{
    qInfo() << "********************** Quorin6 Init Completed **********************";
}

int StartupServices::runEventLoop()
{
    if (m_termination->isRequested())
        QTimer::singleShot(0, m_window, &QWidget::close);
    const int exitCode = QApplication::exec();
    m_library.reset();
    MediaServerManager::killServerProcess();
    return exitCode;
}

// ---- the end

void StartupServices::stopPcmTap()
{
    pcmParser::instance()->stop();
}

void StartupServices::stopAdvertising()
{
    AdvertismentManagerEx::instance()->stopDownloads();
}

void StartupServices::logClosed()
{
    qInfo() << "********************** Quorin6 Closed **********************";
}

void StartupServices::releaseStyles()
{
    StyleLoader::releaseStyles();
}

void StartupServices::releaseSharedMemory()
{
    if (m_guard)
        m_guard->release();
}

void StartupServices::destroyApplication()
{
    if (m_window) {
        // Ended by something else than its close: the engine must not outlive the window that it draws into.
        m_window->close();
        m_application->removeEventFilter(AppEventFilter::instance());
    }
    QPlayer::releaseInstance();
    m_termination.reset();
    m_application.reset();
}
