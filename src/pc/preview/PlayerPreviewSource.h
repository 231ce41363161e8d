// Pictures through the player: one thumbnail session of the engine, whose handle the player keeps.
#pragma once

#include "IPreviewSource.h"

#include <QSize>

class QPlayer;

class PlayerPreviewSource final : public IPreviewSource {
public:
    // The box that the engine fits each picture into, in pixels.
    static constexpr QSize PictureSize{324, 188};

    // Null: the program's player, at the time of each call.
    explicit PlayerPreviewSource(QPlayer *player = nullptr);

    [[nodiscard]] bool open(const QString &path) override;
    [[nodiscard]] PreviewPicture grab(int positionMs) override;
    void close() override;

private:
    [[nodiscard]] QPlayer &player() const;

    QPlayer *m_player;
};
