// Speed and pause of one play, and the motion that libmpv has no good way for: rewind, and a fast forward
// that the machine cannot decode. Both are steps: seeks while paused, paced by a clock, so that the position
// runs evenly at the speed however long a seek takes.
//
// Lives on the engine thread. Does nothing by itself: the host carries out and calls tick() while
// isStepping().
#pragma once

#include <chrono>

class SpeedControl final {
public:
    using Clock = std::chrono::steady_clock;

    class Host {
    public:
        virtual void applySpeed(double speed) = 0;
        virtual void applyPause(bool paused) = 0;
        // Shows the picture at a position; stepDone() answers.
        virtual void applyStep(double seconds, bool exact) = 0;
        // Goes on playing from a position, which must be reached before later calls take effect.
        virtual void applyPosition(double seconds) = 0;
        virtual double currentPosition() = 0; // seconds
        virtual double sourceLength() = 0;    // seconds, 0 when unknown
        virtual bool canStep() = 0;           // the source has a picture and can be sought

        virtual void tellPaused() = 0;
        virtual void tellResumed() = 0;
        virtual void tellSpeed(float speed) = 0;

    protected:
        ~Host() = default;
    };

    static constexpr int normalIndex = 9;
    static constexpr int indexCount = 18;
    // Speed of an index, 1 outside the list.
    [[nodiscard]] static float speedOf(int index);

    SpeedControl(Host &host, bool paused)
        : m_host(host)
        , m_paused(paused)
    {
    }

    void select(int index);
    void togglePause();
    // Pauses for a frame step; nothing when paused already.
    void pause();

    [[nodiscard]] bool isPaused() const { return m_paused; }
    [[nodiscard]] bool isStepping() const { return m_stepping; }
    [[nodiscard]] float speed() const { return m_speed; }

    // Position that the motion has reached; valid while isStepping().
    [[nodiscard]] double steppedPosition(Clock::time_point now) const;
    void tick(Clock::time_point now);
    void stepDone(Clock::time_point now);
    // The user went somewhere else while isStepping().
    void reposition(double seconds, Clock::time_point now);

    // Watches a fast forward: position now. Turns to steps when the machine does not keep up.
    void checkPace(double position, Clock::time_point now);

private:
    void startStepping(float speed, Clock::time_point now);
    void stopStepping(Clock::time_point now);
    void playAt(float speed, Clock::time_point now);

    Host &m_host;
    bool m_paused;
    float m_speed{1};

    bool m_stepping{false};
    bool m_stepRuns{false};
    bool m_exact{true};
    double m_stepBase{0}; // seconds, where the motion stood at m_stepStart
    Clock::time_point m_stepStart;
    Clock::time_point m_stepAsked;
    double m_lastStep{0};

    bool m_pacing{false};
    double m_paceBase{0};
    Clock::time_point m_paceStart;
};
