#version 440

// The blurred ground at full size, livelier in colour and cut to the rounded shape of the glass. Four samples half a
// texel apart instead of one: a single one would show the texels of the small picture as a faint grid.
layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf {
    mat4 qt_Matrix;
    float qt_Opacity;
    float cornerRadius;
    float pixel;
    float saturation;
    vec4 under;
    vec2 plateSize;
    vec2 texel;
};

layout(binding = 1) uniform sampler2D source;

float distanceToEdge(vec2 point, vec2 halfSize, float corner)
{
    vec2 beyond = abs(point) - halfSize + corner;
    return length(max(beyond, 0.0)) + min(max(beyond.x, beyond.y), 0.0) - corner;
}

void main()
{
    vec2 near = texel * 0.5;
    vec4 sum = texture(source, qt_TexCoord0 + near) + texture(source, qt_TexCoord0 - near)
        + texture(source, qt_TexCoord0 + vec2(near.x, -near.y)) + texture(source, qt_TexCoord0 + vec2(-near.x, near.y));
    sum *= 0.25;
    sum += under * (1.0 - sum.a);
    float grey = dot(sum.rgb, vec3(0.2126, 0.7152, 0.0722));
    sum.rgb = clamp(mix(vec3(grey), sum.rgb, saturation), 0.0, sum.a);
    vec2 point = qt_TexCoord0 * plateSize - plateSize / 2.0;
    float inside = clamp(0.5 - distanceToEdge(point, plateSize / 2.0, cornerRadius) / pixel, 0.0, 1.0);
    fragColor = sum * inside * qt_Opacity;
}
