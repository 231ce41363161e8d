// Where everything on the start page stands, for a size of the page and a number of recent sources.
//
// Three forms: an inviting middle while there is nothing recent, the same above a wall of pictures on a tall
// page, and one row above the wall on all others; a narrow page has lines instead of a wall. Plain geometry
// in screen pixels, from design pixels by the factor.
#pragma once

#include <QRect>
#include <QSize>
#include <QVector>

class StartLayout final {
public:
    enum class Form { Empty, Tall, Row };

    struct Needs {
        QSize page;
        int recentCount{0};
        // What the texts ask for, in the font that belongs to the form.
        QSize openButton;
        QSize clearButton;
    };

    StartLayout(const Needs &needs, double factor);

    [[nodiscard]] Form form() const { return m_form; }
    // A page too small for anything but the name and the button.
    [[nodiscard]] bool isSmall() const { return m_isSmall; }
    // Cards with the text beside the picture.
    [[nodiscard]] bool hasLines() const { return m_hasLines; }
    [[nodiscard]] int columns() const { return m_columns; }

    // Heights of type in design pixels.
    [[nodiscard]] int namePixels() const;
    [[nodiscard]] bool showsNote() const { return !m_note.isEmpty(); }

    [[nodiscard]] QRect mark() const { return m_mark; }
    [[nodiscard]] QRect name() const { return m_name; }
    [[nodiscard]] QRect note() const { return m_note; }
    [[nodiscard]] QRect openButton() const { return m_open; }
    [[nodiscard]] QRect heading() const { return m_heading; }
    [[nodiscard]] QRect clearButton() const { return m_clear; }
    // The window onto the wall, which is higher than that where it scrolls.
    [[nodiscard]] QRect wall() const { return m_wall; }
    [[nodiscard]] int wallHeight() const { return m_wallHeight; }
    // Within the wall.
    [[nodiscard]] QVector<QRect> cards() const { return m_cards; }

    // Texts and pictures in the middle, one below the other, instead of in a row.
    [[nodiscard]] bool isCentred() const { return m_form != Form::Row; }

private:
    void placeMiddle(const Needs &needs, int top);
    void placeRow(const Needs &needs);
    void placeWall(const Needs &needs, int top);
    void measureCards(int count);
    [[nodiscard]] int middleHeight(const Needs &needs) const;
    [[nodiscard]] int px(int designPixels) const;

    double m_factor;
    Form m_form{Form::Empty};
    bool m_isSmall{false};
    bool m_hasLines{false};
    int m_columns{0};
    // Left and right end of everything.
    int m_left{0};
    int m_width{0};
    int m_wallHeight{0};
    QRect m_mark;
    QRect m_name;
    QRect m_note;
    QRect m_open;
    QRect m_heading;
    QRect m_clear;
    QRect m_wall;
    QVector<QRect> m_cards;
};
