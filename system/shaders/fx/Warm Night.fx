// Warms the picture for a dark room: takes blue, and some green, out of the light parts. Black stays black, and
// colours keep their order.

//!HOOK OUTPUT
//!BIND HOOKED
//!DESC warm night

#define TINT vec3(1.0, 0.87, 0.66)

vec4 hook()
{
    vec4 here = HOOKED_tex(HOOKED_pos);
    return vec4(here.rgb * TINT, here.a);
}
