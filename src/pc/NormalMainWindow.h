// The shell of PC mode: one frameless window with a title bar and a stack of central views.
//
// Owns the views, the set-up of the engine, the worker for slow engine commands and the play control; what
// happens from a request to the end of playback is the play control's. GUI thread.
#pragma once

#include "WindowPlacement.h"

#include "core/ILanguageBase.h"
#include "keys/KeyOperateType.h"

#include <QWidget>

#include <memory>

class DeferredSetup;
class NormalPlayControl;
class NormalPlayView;
class NormalStartView;
class NormalTitleBar;
class PcKeyActions;
class QDraggableNoBordersWnd;
class QPlayer;
class QStackedWidget;
class ScreenshotWriter;
class SettingsManager;
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
    [[nodiscard]] bool isPlayViewShown() const;

    void retranslate() override;

public slots:
    void slot_playSource(QString strPath);
    void slot_playSource(QString strPath, int nTitle);
    void slot_activeWindow();
    void slot_configLater();
    void slot_backToSelectView();
    void slot_showInitFailDialog();
    void slot_openMedia();
    void slot_hotKey(KeyOperateType type);
    void slot_changeVolume(int nCount);
    void slot_closeClicked();
    void slot_minClicked();
    void slot_maxClicked();
    void slot_restoreClicked();
    void slot_fullScreen();
    void slot_fitVideoSize(int nWidth, int nHeight);
    void slot_saveScreenShot(unsigned char *RGBA, int Width, int Height);
    void SLOT_haveMouseMove();
    void SLOT_mouseMoveStop();

signals:
    void sig_resizeRender(int nWidth, int nHeight);
    void sig_setup3D();

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void makeViews();
    void connectParts();
    void connectControl();
    void restoreWindow(bool showNow);
    void onPlayerMade(QPlayer *player);
    void onEngineReady();
    void showPlayView(const QString &title);
    void tellFailure(int errCode);
    void tellNote(int type);
    void applyAlwaysOnTop(bool playing);
    void noteNormalGeometry();
    void storeVolume();

    SettingsManager &m_settings;
    WindowPlacement m_placement;
    NormalTitleBar *m_titleBar{nullptr};
    QStackedWidget *m_stack{nullptr};
    NormalStartView *m_startView{nullptr};
    NormalPlayView *m_playView{nullptr};
    DeferredSetup *m_setUp{nullptr};
    NormalPlayControl *m_control{nullptr};
    ScreenshotWriter *m_screenshots{nullptr};
    std::unique_ptr<QDraggableNoBordersWnd> m_borders;
    std::unique_ptr<workObject> m_worker;
    std::unique_ptr<PcKeyActions> m_keyActions;
    QPlayer *m_player{nullptr};
    QRect m_normalGeometry;
    bool m_maximizedBeforeFullScreen{false};
    bool m_isEngineReady{false};
    bool m_isClosed{false};
};
