// Draws a window shadow from eight pictures of the resource file: four corners at their own size and four
// edges stretched between them. GUI thread only.
#pragma once

#include <QMap>
#include <QObject>
#include <QPixmap>
#include <QString>

class QPainter;

class QShadowPainter final : public QObject {
    Q_OBJECT

public:
    enum class Set { Window, SubWindow };

    explicit QShadowPainter(Set set = Set::Window, QObject *parent = nullptr);

    // Fills the band between rect and what its corners leave free. Pictures that are missing draw nothing.
    void paint(QPainter &painter, const QRect &rect) const;

private:
    [[nodiscard]] QPixmap picture(const QString &side) const { return m_pictures.value(side); }

    QMap<QString, QPixmap> m_pictures; // "top", "top_left", ...
};
