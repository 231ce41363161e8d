// The bus on which a page asks for another background picture. No state; one object a process, GUI thread.
#pragma once

#include "core/Singleton.h"

#include <QObject>
#include <QString>

class TvSkinManager final : public QObject, public Singleton<TvSkinManager> {
    Q_OBJECT
public:
    // An empty path asks for the default picture.
    void changeMainBkImg(const QString &imgPath) { emit SIG_mainBkImgChanged(imgPath); }
    void changePlayBkImg(const QString &imgPath) { emit SIG_playBkImgChanged(imgPath); }
    void changeAppBkImg(const QString &imgPath) { emit SIG_appBkImgChanged(imgPath); }

signals:
    void SIG_mainBkImgChanged(QString imgPath);
    void SIG_playBkImgChanged(QString imgPath);
    void SIG_appBkImgChanged(QString imgPath);

private:
    friend class Singleton<TvSkinManager>;
    TvSkinManager() = default;
};
