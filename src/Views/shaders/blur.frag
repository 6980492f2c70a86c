#version 440

// One direction of a Gaussian: nine samples, each between two texels so that they count for seventeen.
layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf {
    mat4 qt_Matrix;
    float qt_Opacity;
    vec2 stride;
};

layout(binding = 1) uniform sampler2D source;

void main()
{
    vec4 sum = texture(source, qt_TexCoord0) * 0.11575;
    sum += (texture(source, qt_TexCoord0 + stride * 1.469) + texture(source, qt_TexCoord0 - stride * 1.469)) * 0.20940;
    sum += (texture(source, qt_TexCoord0 + stride * 3.429) + texture(source, qt_TexCoord0 - stride * 3.429)) * 0.14030;
    sum += (texture(source, qt_TexCoord0 + stride * 5.390) + texture(source, qt_TexCoord0 - stride * 5.390)) * 0.06830;
    sum += (texture(source, qt_TexCoord0 + stride * 7.352) + texture(source, qt_TexCoord0 - stride * 7.352)) * 0.02412;
    fragColor = sum * qt_Opacity;
}
