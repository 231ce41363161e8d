// What PC mode shows while music plays: the cover, or a mark in its place, and the name.
//
// GUI thread. Knows no player; the window tells it what to show.
#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

class NormalAudioView final : public QWidget {
    Q_OBJECT

public:
    explicit NormalAudioView(QWidget *parent = nullptr);

    void setName(const QString &name);
    // Null for a source without a cover.
    void setCover(const QImage &cover);
    [[nodiscard]] QString name() const { return m_name; }
    [[nodiscard]] bool hasCover() const { return !m_cover.isNull(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QRect coverRect() const;
    void paintMark(QPainter &painter, const QRect &place) const;

    QString m_name;
    QImage m_cover;
    QPixmap m_scaled; // the cover at the size of the last painting
};
