// Geometry and picture of a seek slider: where a second lies, which second lies at a point, and how it is
// drawn.
//
// Stateless; the slider's painting and its mouse share the same functions.
#pragma once

#include <QRectF>
#include <QVector>

class QPainter;

struct SeekTrack {
    QRect bounds;      // of the slider
    double ratio{1.0}; // screen pixels a design pixel
    int totalSeconds{0};
    QVector<int> chapters; // starts, in seconds and ascending

    struct State {
        int seconds{0};
        int hoverX{-1};   // below 0: the pointer is elsewhere
        double heat{0.0}; // 0 at rest to 1 under the pointer or in a drag
        bool enabled{true};
        bool focus{false};
    };

    [[nodiscard]] QRectF groove() const;
    [[nodiscard]] double xOf(int seconds) const;
    [[nodiscard]] int secondsAt(int x) const;
    // The groove cut at the chapters; one piece without any.
    [[nodiscard]] QVector<QRectF> segments() const;

    void paint(QPainter &painter, const State &state) const;
};
