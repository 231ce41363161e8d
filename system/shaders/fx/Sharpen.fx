// Sharpens the picture before it is scaled: what differs from its surroundings is lifted, less so at edges that
// are hard already, where it would draw bright rims.

//!HOOK MAIN
//!BIND HOOKED
//!DESC sharpen

#define STRENGTH 0.75

vec4 hook()
{
    vec4 here = HOOKED_tex(HOOKED_pos);
    vec3 up = HOOKED_texOff(vec2(0.0, -1.0)).rgb;
    vec3 down = HOOKED_texOff(vec2(0.0, 1.0)).rgb;
    vec3 left = HOOKED_texOff(vec2(-1.0, 0.0)).rgb;
    vec3 right = HOOKED_texOff(vec2(1.0, 0.0)).rgb;

    vec3 detail = here.rgb - 0.25 * (up + down + left + right);
    vec3 darkest = min(min(up, down), min(left, right));
    vec3 brightest = max(max(up, down), max(left, right));
    // Room that is left on both sides: none beside a hard edge.
    vec3 room = clamp(1.0 - (brightest - darkest), 0.25, 1.0);

    return vec4(clamp(here.rgb + STRENGTH * room * detail, 0.0, 1.0), here.a);
}
