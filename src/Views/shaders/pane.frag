#version 440

// The second direction of the blur, livelier in colour and cut to the rounded shape of the glass.
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
    vec2 stride;
};

layout(binding = 1) uniform sampler2D source;

float distanceToEdge(vec2 point, vec2 halfSize, float corner)
{
    vec2 beyond = abs(point) - halfSize + corner;
    return length(max(beyond, 0.0)) + min(max(beyond.x, beyond.y), 0.0) - corner;
}

void main()
{
    vec4 sum = texture(source, qt_TexCoord0) * 0.11575;
    sum += (texture(source, qt_TexCoord0 + stride * 1.469) + texture(source, qt_TexCoord0 - stride * 1.469)) * 0.20940;
    sum += (texture(source, qt_TexCoord0 + stride * 3.429) + texture(source, qt_TexCoord0 - stride * 3.429)) * 0.14030;
    sum += (texture(source, qt_TexCoord0 + stride * 5.390) + texture(source, qt_TexCoord0 - stride * 5.390)) * 0.06830;
    sum += (texture(source, qt_TexCoord0 + stride * 7.352) + texture(source, qt_TexCoord0 - stride * 7.352)) * 0.02412;
    sum += under * (1.0 - sum.a);
    float grey = dot(sum.rgb, vec3(0.2126, 0.7152, 0.0722));
    sum.rgb = clamp(mix(vec3(grey), sum.rgb, saturation), 0.0, sum.a);
    vec2 point = qt_TexCoord0 * plateSize - plateSize / 2.0;
    float inside = clamp(0.5 - distanceToEdge(point, plateSize / 2.0, cornerRadius) / pixel, 0.0, 1.0);
    fragColor = sum * inside * qt_Opacity;
}
