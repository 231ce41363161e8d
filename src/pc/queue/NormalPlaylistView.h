// The panel with the queue, which slides in at the right side of the playing window.
//
// Owns the queue and its parts; not the settings. As an overlay it is placed, stacked and faded by the
// OverlayHost; the card moves within it, and the panel hides itself when the card has gone. A window of the
// overlay kind never has the keyboard: whoever has it hands keys on with handleKey(). GUI thread.
#pragma once

#include "PlayQueue.h"
#include "QueueMenus.h"

#include "playcontrol/DropRule.h"
#include "ui/AnimateObject.h"
#include "ui/OverlayRule.h"
#include "ui/OverlayWidget.h"

#include <QElapsedTimer>

#include <functional>
#include <memory>

class FolderOpener;
class NormalPlaylistIconDelegate;
class NormalPlaylistListDelegate;
class QAbstractItemView;
class QListView;
class QStackedWidget;
class QueueEmptyPage;
class QueueDelegate;
class QueueHead;
class QueueListView;

class NormalPlaylistView final : public OverlayWidget, public AnimateObject {
    Q_OBJECT

public:
    // What the panel asks the world for; everything but the titles of discs has a default.
    struct Services {
        PlayQueue::Services queue;
        DropRule drops;
        // Empty without a choice.
        std::function<QStringList(QWidget *parent, const QString &folder)> chooseFiles;
        std::function<QString(QWidget *parent, const QString &folder)> chooseFolder;
        std::function<void(const QString &path)> showInFolder;
    };

    static constexpr int OpenMs = 220;
    static constexpr int CloseMs = 180;

    NormalPlaylistView(SettingsManager &settings, Services services, QWidget *parent = nullptr);
    ~NormalPlaylistView() override;

    // Where the panel stands over the picture; level as in OverlayRule.
    [[nodiscard]] static OverlayRule rule(int level);
    // With what stands between it and the edge, in design pixels.
    [[nodiscard]] static int designWidth();

    [[nodiscard]] PlayQueue *queue() const { return m_queue; }

    // ---- open and closed
    void open();
    void close();
    void setOpen(bool isOpen) { isOpen ? open() : close(); }
    [[nodiscard]] bool isOpen() const { return m_isOpen; }
    // At once and without the slide, for a picture that goes.
    void closeNow();

    // ---- for the window that plays
    // A source is on its way: the title to open when it is an entry of the queue that names one, else -1.
    int beginSource(const QString &path) { return m_queue->beginSource(path); }
    void requestRefused() { m_queue->requestRefused(); }
    // The user has gone back: nothing follows by itself any more.
    void dropNext() { m_queue->dropNext(); }
    void addSources(const QStringList &paths) { m_queue->add(paths); }
    void save() { m_queue->save(); }
    // False when the key is none of the panel's: it is closed, or the keyboard is not in it.
    [[nodiscard]] bool takesKey(const QKeyEvent &event) const;
    bool handleKey(QKeyEvent *event);
    // The keyboard belongs to the panel, from a press on it until Escape, a press elsewhere or its close.
    void setKeyboardUsed(bool used);
    [[nodiscard]] bool isKeyboardUsed() const { return m_isKeyboardUsed; }

    // ---- parts
    [[nodiscard]] QueueDelegate *delegateInUse() const;
    [[nodiscard]] QueueListView *list() const { return m_list; }
    [[nodiscard]] QListView *grid() const { return m_grid; }
    [[nodiscard]] QueueHead *head() const { return m_head; }
    [[nodiscard]] QueueMenus *menus() { return &m_menus; }
    [[nodiscard]] QModelIndex selectNode() const { return m_selectNode; }
    [[nodiscard]] QRect cardRect() const;
    void setGrid(bool isGrid);
    [[nodiscard]] bool isGrid() const;
    // Files and folders from elsewhere; -1 for the end.
    void takeUrls(const QList<QUrl> &urls, int before);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QPainterPath opaqueShape() const override;
    [[nodiscard]] bool takesMouseAt(const QPoint &position) const override;
    void initAnimate(QString name) override;
    void startAnimate(QString name, bool forward) override;
    void retranslate();

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void sig_playSource(QString strPath, int nTitle);
    void sig_PlayBackEnd();
    void sig_widgetStateChanged(bool bOpen);
    void sig_userBehaviour(QString name, QString value);
    // Something for the user to read: why a drop was not taken.
    void sig_notice(QString text);

public slots:
    void slot_autoPlayNext();
    void slot_playNext();
    void slot_playLast();
    void slot_changeExpandState(QModelIndex index);
    void slot_removeDiscList(QString strPath);
    void slot_addMusicPlaylist(QList<QString> lstPaths);
    void slot_setPlayStatus(QPlayer::QPlayerStatus status);
    void slot_setMetaInfo(QPlayer::QPlayerMetaType type, QString strInfo);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void compactChanged() override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void setDefaultServices();
    void makeParts();
    void makeConnections();
    void placeCard();
    void setShown(double part);
    void hideWhenClosed();
    void showMark();
    void showPage();
    void placeTiles();
    [[nodiscard]] QModelIndexList selection() const;
    [[nodiscard]] QueueMenus::State menuState() const;
    void popUpUnder(QMenu *menu, const QWidget *button);
    void deal(QueueMenus::Action action, int number);
    void addFiles();
    void addFolder();
    void removeSelection();
    [[nodiscard]] QAbstractItemView *viewInUse() const;
    // True when the key is no concern of the view any more.
    bool dealRowKey(QKeyEvent *event);
    void showFocus(bool shown);
    void showHover(const QModelIndex &index);
    void setDropping(bool dropping);
    [[nodiscard]] static int searchMs();
    // A name is being typed.
    [[nodiscard]] bool isSearching() const;
    // The part that has the keyboard.
    [[nodiscard]] QWidget *keyboardPart() const;
    void openContainingFolder();

    SettingsManager &m_settings;
    Services m_services;
    PlayQueue *m_queue;
    QueueMenus m_menus;
    std::unique_ptr<FolderOpener> m_folders;
    QWidget *m_card{nullptr};
    QueueHead *m_head{nullptr};
    QStackedWidget *m_pages{nullptr};
    QueueListView *m_list{nullptr};
    QListView *m_grid{nullptr};
    QueueEmptyPage *m_empty{nullptr};
    NormalPlaylistListDelegate *m_listDelegate{nullptr};
    NormalPlaylistIconDelegate *m_iconDelegate{nullptr};
    QPersistentModelIndex m_selectNode;
    // Since the last letter of a name that is being typed.
    QElapsedTimer m_searchClock;
    double m_shown{0.0};
    int m_dropReaders{0};
    bool m_isOpen{false};
    bool m_isKeyboardUsed{false};
    bool m_isDropping{false};
};
