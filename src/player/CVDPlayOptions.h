// How to open a source, as the engine reads it.
#pragma once

#include "contract/IVDPlayOptions.h"
#include "contract/VDTypes.h"

#include <string>

class CVDPlayOptions final : public libvp::IVDPlayOptions {
public:
    double m_startSeconds{0};
    double m_endSeconds{0};
    std::string m_title; // what the engine reads of the title number
    bool m_flagA{false};
    int m_titleNumber{-1};
    int m_audioStream{libvp::VD_DefaultChoice};
    int m_subtitleStream{libvp::VD_DefaultChoice};
    int m_angle{libvp::VD_DefaultChoice};
    int m_chapter{-1};
    std::string m_extra;
    bool m_flagB{false};
    bool m_autoStart{true};
    int m_lastField{-1};

    void reset() { *this = CVDPlayOptions(); }

    // -1 opens the main title.
    void setTitleNumber(int number)
    {
        m_titleNumber = number;
        m_title = number == -1 ? std::string() : std::to_string(number);
    }

    double startSeconds() override { return m_startSeconds; }
    double endSeconds() override { return m_endSeconds; }
    const char *title() override { return m_title.c_str(); }
    bool flagA() override { return m_flagA; }
    int audioStream() override { return m_audioStream; }
    int subtitleStream() override { return m_subtitleStream; }
    int angle() override { return m_angle; }
    int chapter() override { return m_chapter; }
    bool autoStart() override { return m_autoStart; }
    const char *extra() override { return m_extra.c_str(); }
    bool reserved11() override { return false; }
    bool reserved12() override { return false; }
    int lastField() override { return m_lastField; }
    int reserved14() override { return -1; }
    int reserved15() override { return 0; }
    bool reserved16() override { return false; }
    float reserved17() override { return 1.0F; }
};
