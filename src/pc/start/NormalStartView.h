// What PC mode shows while nothing plays: the name, a way to open something, what was played last, and where
// to drop something.
//
// Owns its parts; knows neither settings nor player. The keyboard reaches everything: Tab goes on, the arrows
// move among the recent sources, Enter opens. GUI thread.
#pragma once

#include "StartLayout.h"

#include "playcontrol/FilePresence.h"
#include "playcontrol/RecentFiles.h"

#include <QHash>
#include <QVariant>
#include <QVector>
#include <QWidget>

class DropFrame;
class PosterView;
class QLabel;
class QScrollArea;
class RecentCard;
class StartButton;
class StartHead;

class NormalStartView final : public QWidget {
    Q_OBJECT
public:
    explicit NormalStartView(QWidget *parent = nullptr);
    // With another way to tell whether a file is there.
    NormalStartView(FilePresence::Exists exists, QWidget *parent);
    ~NormalStartView() override;

    // What was played last, newest first. Sources that are gone are dimmed as soon as that is known.
    void setRecent(const QVector<RecentFiles::Entry> &recent);
    [[nodiscard]] QVector<RecentCard *> cards() const { return m_cards; }

    // The picture behind everything; see PosterView::setPoster().
    void setPoster(const QVariant &picture, bool animate);
    [[nodiscard]] PosterView *poster() const { return m_poster; }

    // Shows that what is being dragged would be taken.
    void setDropping(bool dropping);
    [[nodiscard]] bool isDropping() const;

    void retranslate();

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void openMediaClicked();
    void recentClicked(const QString &path);
    void recentCleared();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void makeParts();
    void arrange();
    void checkPresence();
    void showPresence(const QString &path, bool isPresent);
    void moveCursor(const RecentCard *from, int columns, int rows);
    void setKeyboardUsed(bool used);

    FilePresence m_presence;
    PosterView *m_poster{nullptr};
    StartHead *m_head{nullptr};
    StartButton *m_open{nullptr};
    QLabel *m_heading{nullptr};
    StartButton *m_clear{nullptr};
    QScrollArea *m_wall{nullptr};
    QWidget *m_wallPage{nullptr};
    DropFrame *m_drop{nullptr};
    QVector<RecentCard *> m_cards;
    int m_columns{1};
};
