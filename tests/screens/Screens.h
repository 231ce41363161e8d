// Draws the real widgets with contents as they have in use, one picture each.
#pragma once

#include <QImage>
#include <QString>

class QWidget;

class Screens final {
public:
    // folder: where the pictures go. scale: 1 for an ordinary display, 2 for one of double density.
    Screens(QString folder, int scale);

    void drawAll();
    // False when a picture could not be written.
    [[nodiscard]] bool isGood() const { return m_good; }

private:
    void drawStart();
    void drawMessages();
    void drawPictureDialogs();
    void drawOtherDialogs();
    void drawNotes();
    void drawPreview();
    void drawPlaylist();
    void drawSettings();
    void drawMenus();
    void drawTv();

    // The widget as it stands over a film, with some of the film around it.
    void keepOverFilm(QWidget &widget, const QString &name);
    void keepAlone(QWidget &widget, const QString &name);
    void keep(const QImage &image, const QString &name);

    QString m_folder;
    int m_scale;
    bool m_good{true};
};
