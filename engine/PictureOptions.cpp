#include "PictureOptions.h"

#include "contract/VDTypes.h"

#include <algorithm>
#include <cmath>

namespace {

struct ViewRow {
    int mode;
    bool keepAspect;
    double aspect; // 0: the source's own
    double panScan;
    bool unscaled;
};

constexpr ViewRow viewRows[] = {
    {libvp::VD_View_Default, true, 0, 0, false},     {libvp::VD_View_Original, true, 0, 0, true},
    {libvp::VD_View_4_3, true, 4.0 / 3, 0, false},   {libvp::VD_View_FitWindow, false, 0, 0, false},
    {libvp::VD_View_16_9, true, 16.0 / 9, 0, false}, {libvp::VD_View_FillWindow, true, 0, 1, false},
    {libvp::VD_View_Custom, true, 0, 0, false},      {libvp::VD_View_2_35, true, 2.35, 0, false},
};

struct CurveRow {
    int curve;
    const char *name;
};

// The nearest curve that libmpv has.
constexpr CurveRow curveRows[] = {{0, "reinhard"}, {1, "hable"}, {2, "mobius"}, {3, "bt.2390"}};

struct StereoRow {
    int output;
    const char *filter;
};

// A plain display shows the automatic mode as red and cyan, the one form that needs no special display.
constexpr StereoRow stereoRows[] = {{0, "arcd"}, {1, "arcd"}, {2, "chl"}, {3, "irl"}, {4, "hdmi"}};

constexpr double sdrWhiteNits = 203;
// A picture at least this wide holds both views at full width.
constexpr double fullSideBySideAspect = 2.6;
// A picture at most this wide holds both views at full height.
constexpr double fullTopBottomAspect = 1.1;

const ViewRow &viewRow(int mode)
{
    const auto *row = std::find_if(std::begin(viewRows), std::end(viewRows),
                                   [mode](const ViewRow &candidate) { return candidate.mode == mode; });
    return row == std::end(viewRows) ? viewRows[0] : *row;
}

const char *toneCurve(int curve)
{
    for (const CurveRow &row : curveRows) {
        if (row.curve == curve)
            return row.name;
    }
    return "auto";
}

bool startsWith(const std::string &text, const char *prefix)
{
    return text.rfind(prefix, 0) == 0;
}

std::string stereoFilter(const PlayPreferences &preferences, const SourcePicture &source)
{
    if (!preferences.stereoEngine)
        return {};
    const char *output = nullptr;
    for (const StereoRow &row : stereoRows) {
        if (row.output == preferences.stereoOutput)
            output = row.filter;
    }
    if (!output)
        return {};
    std::string input;
    if (preferences.stereoInput == 1 || (preferences.stereoInput == 0 && startsWith(source.stereo, "sbs")))
        input = source.aspect >= fullSideBySideAspect ? "sbs" : "sbs2";
    else if (preferences.stereoInput == 2
             || (preferences.stereoInput == 0 && startsWith(source.stereo, "ab")))
        input = source.aspect > 0 && source.aspect <= fullTopBottomAspect ? "ab" : "ab2";
    else
        return {};
    const bool detected = preferences.stereoInput == 0;
    const bool rightInSource = detected && !source.stereo.empty() && source.stereo.back() == 'r';
    input += rightInSource != preferences.rightViewFirst ? 'r' : 'l';
    return "stereo3d=" + input + ':' + output;
}

std::string filters(const PlayPreferences &preferences, const SourcePicture &source)
{
    std::string chain = stereoFilter(preferences, source);
    const auto add = [&chain](const char *filter) {
        chain += (chain.empty() ? "" : ",") + std::string(filter);
    };
    if (preferences.flip & 1)
        add("hflip");
    if (preferences.flip & 2)
        add("vflip");
    return chain;
}

void addView(MpvMap &options, const PlayPreferences &preferences, const SourcePicture &source)
{
    const ViewRow &row = viewRow(preferences.viewMode);
    double aspect = row.aspect;
    double zoom = 0;
    double shift = 0;
    if (row.mode == libvp::VD_View_Custom) {
        if (std::abs(preferences.pixelRatio - 1.0) > 1e-4 && source.aspect > 0)
            aspect = source.aspect * preferences.pixelRatio;
        zoom = std::log2(std::clamp(preferences.zoom, 0.05, 20.0));
        shift = std::clamp(preferences.verticalShift, -2.0, 2.0);
    }
    options["keepaspect"] = row.keepAspect;
    options["video-aspect-override"] = aspect > 0 ? MpvValue(aspect) : MpvValue("-1");
    options["panscan"] = row.panScan;
    options["video-unscaled"] = row.unscaled ? "yes" : "no";
    options["video-zoom"] = zoom;
    options["video-pan-y"] = shift;
}

void addRange(MpvMap &options, const PlayPreferences &preferences, const SourcePicture &source)
{
    const bool passes = source.isHdr() && PictureOptions::passesHdr(preferences);
    options["target-trc"] = passes ? source.gamma.c_str() : "auto";
    options["target-prim"] = passes ? "bt.2020" : "auto";
    options["tone-mapping"] = toneCurve(preferences.toneCurve);
    const int luminance = std::clamp(preferences.luminance, 0, 100);
    // A lower peak lifts the mid tones, so that a higher value is the brighter picture.
    const double peak = sdrWhiteNits * std::exp2((50 - luminance) / 25.0);
    const bool scaled = luminance != 50 && !passes;
    options["target-peak"] = scaled ? MpvValue(std::to_string(std::lround(peak))) : MpvValue("auto");
    options["video-output-levels"] = preferences.limitedRange ? "limited" : "full";
}

} // namespace

namespace PictureOptions {

bool passesHdr(const PlayPreferences &preferences)
{
    return !preferences.toneMap && preferences.hdrMode != 1;
}

MpvMap build(const PlayPreferences &preferences, const SourcePicture &source)
{
    MpvMap options;
    addView(options, preferences, source);
    addRange(options, preferences, source);
    options["video-rotate"] = (preferences.rotation & 3) * 90;
    const std::string chain = filters(preferences, source);
    options["vf"] = chain;
    // Filters work on frames in memory.
    options["hwdec"] = !preferences.hardwareDecoding ? "no" : chain.empty() ? "auto-safe" : "auto-copy-safe";
    options["deinterlace"] =
        preferences.deinterlace == 2 || (preferences.deinterlace == 1 && source.interlaced);
    return options;
}

int equalizer(float value)
{
    return std::isfinite(value) ? static_cast<int>(std::lround((std::clamp(value, 0.0f, 100.0f) - 50) * 2))
                                : 0;
}

unsigned stereoModes()
{
    unsigned mask = 0;
    for (const StereoRow &row : stereoRows)
        mask |= 1u << row.output;
    return mask;
}

} // namespace PictureOptions
