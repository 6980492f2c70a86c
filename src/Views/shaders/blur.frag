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
    vec4 sum = texture(source, qt_TexCoord0) * 0.1633;
    sum += (texture(source, qt_TexCoord0 + stride * 1.45) + texture(source, qt_TexCoord0 - stride * 1.45)) * 0.2136;
    sum += (texture(source, qt_TexCoord0 + stride * 3.4) + texture(source, qt_TexCoord0 - stride * 3.4)) * 0.1300;
    sum += (texture(source, qt_TexCoord0 + stride * 5.35) + texture(source, qt_TexCoord0 - stride * 5.35)) * 0.0560;
    sum += (texture(source, qt_TexCoord0 + stride * 7.3) + texture(source, qt_TexCoord0 - stride * 7.3)) * 0.0187;
    fragColor = sum * qt_Opacity;
}
