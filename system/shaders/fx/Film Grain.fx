// Lays fine grain over the picture, as film has it: most in the mid tones, none in black and white, and another
// one in each frame.

//!HOOK OUTPUT
//!BIND HOOKED
//!DESC film grain

#define STRENGTH 0.08

float noise(vec2 place)
{
    return fract(sin(dot(place, vec2(12.9898, 78.233)) + random * 31.0) * 43758.5453);
}

vec4 hook()
{
    vec4 here = HOOKED_tex(HOOKED_pos);
    vec2 pixel = floor(HOOKED_pos * HOOKED_size);
    // Two throws together are soft like grain, not hard like static.
    float grain = noise(pixel) + noise(pixel + vec2(17.0, 59.0)) - 1.0;
    float light = dot(here.rgb, vec3(0.2126, 0.7152, 0.0722));
    float weight = 4.0 * light * (1.0 - light);

    return vec4(clamp(here.rgb + STRENGTH * weight * grain, 0.0, 1.0), here.a);
}
