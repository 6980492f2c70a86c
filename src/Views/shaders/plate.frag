#version 440

// A rounded plate: ground, a sheen from top to foot, and a rim of one pixel inside the edge.
layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf {
    mat4 qt_Matrix;
    float qt_Opacity;
    float cornerRadius;
    float pixel;
    vec2 plateSize;
    vec4 ground;
    vec4 sheenTop;
    vec4 sheenFoot;
    vec4 rimTop;
    vec4 rimMiddle;
    vec4 rimFoot;
};

float distanceToEdge(vec2 point, vec2 halfSize, float corner)
{
    vec2 beyond = abs(point) - halfSize + corner;
    return length(max(beyond, 0.0)) + min(max(beyond.x, beyond.y), 0.0) - corner;
}

vec4 over(vec4 above, vec4 below)
{
    return above + below * (1.0 - above.a);
}

void main()
{
    vec2 point = qt_TexCoord0 * plateSize - plateSize / 2.0;
    float edge = distanceToEdge(point, plateSize / 2.0, cornerRadius);
    float inside = clamp(0.5 - edge / pixel, 0.0, 1.0);
    float deep = clamp(0.5 - (edge + 1.0) / pixel, 0.0, 1.0);
    float down = qt_TexCoord0.y;
    vec4 rim = down < 0.5 ? mix(rimTop, rimMiddle, down * 2.0) : mix(rimMiddle, rimFoot, down * 2.0 - 1.0);
    vec4 plate = over(mix(sheenTop, sheenFoot, down), ground);
    fragColor = over(rim * (1.0 - deep), plate) * inside * qt_Opacity;
}
