// The source to open, as the engine reads it.
#pragma once

#include "contract/IVDFileItem.h"
#include "contract/VDTypes.h"

#include <string>

class CVDFileItem final : public libvp::IVDFileItem {
public:
    int m_itemType{libvp::VD_Item_Default};
    std::string m_path; // UTF-8
    std::string m_auxPath;
    int m_flags{0};

    void reset() { *this = CVDFileItem(); }

    const char *path() override { return m_path.c_str(); }
    int reserved2() override { return 0; }
    const char *auxiliaryPath() override { return m_auxPath.c_str(); }
    int flags() override { return m_flags; }
    int itemType() override { return m_itemType; }
};
