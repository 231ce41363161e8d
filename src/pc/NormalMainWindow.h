// The shell of PC mode: one frameless window with a stack of central views, and bars that hover over them.
//
// Owns the views, the overlays, the set-up of the engine, the worker for slow engine commands and the play
// control; what happens from a request to the end of playback is the play control's. GUI thread.
#pragma once

#include "WindowPlacement.h"

#include "core/ILanguageBase.h"
#include "keys/KeyOperateType.h"
#include "playcontrol/DropRule.h"
#include "playcontrol/RecentFiles.h"
#include "settings/SettingRow.h"
#include "ui/AnimateMenu.h"

#include <QImage>
#include <QPoint>
#include <QVariant>
#include <QWidget>

#include <memory>

class CoverReader;
class DeferredSetup;
class DropReader;
class NormalAudioView;
class NormalPlayControl;
class NormalPlayView;
class NormalStartView;
class NormalTitleBar;
class OpticalDiscs;
class PcDialogs;
class NormalSettingPage;
class PcKeyActions;
class PcMediaSession;
class PcSettingsHost;
class PlayMenu;
class PlayOverlays;
class QDraggableNoBordersWnd;
class QAction;
class QPlayer;
class QStackedWidget;
class ScreenshotWriter;
class SettingsManager;
class WindowShadow;
class workObject;

class NormalMainWindow final : public QWidget, public ILanguageBase {
    Q_OBJECT
public:
    // Bits of applyStartFlags().
    static constexpr int StartFullScreen = 1;
    static constexpr int StartCloseAtEnd = 16;

    NormalMainWindow(QWidget *parent, bool showNow);
    ~NormalMainWindow() override;

    void applyStartFlags(int flags);
    [[nodiscard]] NormalPlayControl *playControl() const { return m_control; }
    [[nodiscard]] PlayOverlays *overlays() const { return m_overlays; }
    [[nodiscard]] PcMediaSession *mediaSession() const { return m_session; }
    // The picture, or what stands for it while music plays, is on view.
    [[nodiscard]] bool isPlayViewShown() const;

    // The lines of the main menu; without a source those for the picture can't be chosen.
    [[nodiscard]] static QVector<AnimateMenu::Row> menuRows(bool playing);

    void retranslate() override;

public slots:
    void slot_playSource(QString strPath);
    void slot_playSource(QString strPath, int nTitle);
    void slot_activeWindow();
    void slot_configLater();
    void slot_backToSelectView();
    void slot_showInitFailDialog();
    void slot_openMedia();
    void slot_loadSubtitle();
    void slot_aboutAction();
    void slot_feedbackAction();
    void slot_menuClicked();
    void slot_hotKey(KeyOperateType type);
    void slot_dealMenuAction(QAction *action);
    void slot_settingClicked();
    // Steps of the volume, negative ones downwards.
    void slot_changeVolume(int nCount);
    void slot_changePoster(QVariant poster, bool bAnimate);
    void slot_posterProgressChange(QVariant value);
    void slot_opacityProgressChange(QVariant value);
    void slot_closeClicked();
    void slot_minClicked();
    void slot_maxClicked();
    void slot_restoreClicked();
    void slot_fullScreen();
    void slot_fitVideoSize(int nWidth, int nHeight);
    void slot_resizeFromRightBottom(QPoint pt);
    void slot_updatePosition(QPoint pt);
    void slot_saveScreenShot(unsigned char *RGBA, int Width, int Height);
    // The picture of the moment that was asked for last.
    void slot_saveClipboard();
    void slot_responseFocusChange(QWidget *old, QWidget *now);
    void SLOT_haveMouseMove();
    void SLOT_mouseMoveStop();

signals:
    void sig_resizeRender(int nWidth, int nHeight);
    void sig_setup3D();
    void sig_seek(int nTime);
    void sig_addSubtitle(QString strPath);

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    bool nativeEvent(const QByteArray &eventType, void *message, long *result) override;

private:
    static void noteBehaviour(const QString &name, const QString &value);
    void makeViews();
    void makeMenu();
    void makePlayMenu();
    // Asks what a folder that joins the library holds.
    [[nodiscard]] bool isAdultFolder();
    void connectParts();
    void connectTitleBar(NormalTitleBar *titleBar);
    void connectBar();
    void connectPlaylist();
    void connectControl();
    void connectSession();
    void restoreWindow(bool showNow);
    void onPlayerMade(QPlayer *player);
    void onEngineReady();
    void onDiscEvent(char drive, int notifyType);
    void onSourceOpened(bool isVideo);
    void onCover(const QImage &cover);
    void showPlayView(const QString &title);
    void offerLastPosition();
    void takeDrop(const DropRule::Outcome &outcome);
    void addDroppedSubtitles();
    void showRecent();
    void tellFailure(int errCode);
    void tellNote(int type);
    void tellBdavNote();
    void openDialog(PopDlgTyle type);
    void openSettings(SettingsPageId page);
    void takeSettings(const QStringList &keys);
    void applyAlwaysOnTop(bool playing);
    void toggleAlwaysOnTop();
    void toggleInformation();
    void updateTitleBar();
    void placeMenu();
    void noteNormalGeometry();
    void pauseWhileMinimized();
    void passMouseToDisc(const QMouseEvent &event);
    // Whether the part over the picture that has the keyboard takes the key for itself.
    [[nodiscard]] bool isKeyOfPart(const QKeyEvent &event) const;

    SettingsManager &m_settings;
    WindowPlacement m_placement;
    RecentFiles m_recent;
    NormalTitleBar *m_titleBar{nullptr};
    QStackedWidget *m_stack{nullptr};
    NormalStartView *m_startView{nullptr};
    NormalPlayView *m_playView{nullptr};
    NormalAudioView *m_audioView{nullptr};
    AnimateMenu *m_menu{nullptr};
    PlayMenu *m_playMenu{nullptr};
    OpticalDiscs *m_discs{nullptr};
    PlayOverlays *m_overlays{nullptr};
    PcDialogs *m_dialogs{nullptr};
    DeferredSetup *m_setUp{nullptr};
    NormalPlayControl *m_control{nullptr};
    WindowShadow *m_shadow{nullptr};
    ScreenshotWriter *m_screenshots{nullptr};
    PcMediaSession *m_session{nullptr};
    CoverReader *m_covers{nullptr};
    DropReader *m_drops{nullptr};
    QStringList m_droppedSubtitles; // for the source that is on its way
    std::unique_ptr<QDraggableNoBordersWnd> m_borders;
    std::unique_ptr<workObject> m_worker;
    std::unique_ptr<PcKeyActions> m_keyActions;
    std::unique_ptr<PcSettingsHost> m_settingsHost;
    NormalSettingPage *m_settingPage{nullptr}; // made at its first use
    QPlayer *m_player{nullptr};
    QRect m_normalGeometry;
    QSize m_sizeBeforeFit; // empty while no video has changed the size
    QImage m_shotForClipboard;
    QPoint m_pressedAt;
    bool m_isPressedOnPicture{false};
    bool m_maximizedBeforeFullScreen{false};
    bool m_isEngineReady{false};
    bool m_isPausedByMinimize{false};
    bool m_isClosed{false};
};
