// Note over the picture that offers the next episode during the last half minute of a TV show's source.
//
// Left alone, the next episode plays at the end of the source; "Not this time" forgets it. The episode's
// source outlives the note. GUI thread.
#pragma once

#include "PictureNote.h"
#include "playcontrol/INextEpisodeSource.h"

#include "player/QPlayer.h"

#include <QPixmap>

class QLabel;
class QPushButton;

class NormalTvshowAutoPlayLabel final : public PictureNote {
    Q_OBJECT

public:
    static constexpr int LeadSeconds = 30;

    // episodes may be null: then nothing is ever offered.
    explicit NormalTvshowAutoPlayLabel(INextEpisodeSource *episodes, QWidget *parent = nullptr);

    // A source begins; what was known of the one before is forgotten.
    void setSource(const QString &path);
    // The episode that follows at the end; empty without one, or when the user does not want it.
    [[nodiscard]] QString nextPath() const { return m_next.path; }

    [[nodiscard]] QSize sizeHint() const override;

signals:
    void sig_playSource(QString path);

public slots:
    void slot_showLabel();
    void slot_hideLabel();
    void slot_setMetaInfo(QPlayer::QPlayerMetaType type, QString strInfo);

protected:
    void paintCard(QPainter &painter) override;
    void cardMoved() override;

private:
    void take(const NextEpisode &next);
    void forget();
    void playNow();
    void notThisTime();

    INextEpisodeSource *m_episodes;
    NextEpisode m_next;
    QPixmap m_poster;
    int m_request{0};        // answers to earlier ones come too late
    bool m_isOffered{false}; // shown, or about to be, for this source

    QLabel *m_title{nullptr};
    QPushButton *m_playNow{nullptr};
    QPushButton *m_notThisTime{nullptr};
};
