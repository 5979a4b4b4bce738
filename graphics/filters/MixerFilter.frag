// SPDX-License-Identifier: MIT
// Converts colour to grey: writes the weighted sum of the channels to all three channels; alpha is 1.
//   MainTexture    the image
//   Weights        multipliers of r, g and b, not normalised; a sum of 1 preserves white
//   Width, Height  size of the pass in pixels

uniform sampler2D MainTexture;
uniform vec3 Weights;
uniform float Width;
uniform float Height;

vec4 texelFetch(sampler2D tex, float x, float y)
{
    return texture2D(tex, vec2(float(x) / Width, float(y) / Height));
}

void main()
{
    vec4 color = texelFetch(MainTexture, gl_FragCoord.x, gl_FragCoord.y);
    float all = ((color.r * Weights.r) + (color.g * Weights.g) + (color.b * Weights.b));
    gl_FragColor = vec4(all, all, all, 1.0);
}
