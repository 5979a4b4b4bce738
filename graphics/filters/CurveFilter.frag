// SPDX-License-Identifier: MIT
// Applies the tone curve: writes the curve sample nearest to the red channel to all four channels.
//   MainTexture    the grey image; only the red channel is read
//   Curve          output values 0..1 for evenly spaced grey values 0..1
//   Width, Height  size of the pass in pixels
//   MaxPixel       1
// The lookup is clamped to 0.999 because the texture repeats: 1.0 would read its first sample.

uniform float Width;
uniform float Height;
uniform sampler2D MainTexture;
uniform sampler1D Curve;
uniform float MaxPixel;

vec4 sample(sampler2D tex, vec2 position)
{
    return texture2D(tex, vec2(position.x / Width, position.y / Height));
}

vec4 noiseSample(sampler2D tex, vec2 position)
{
    return texture2D(tex, vec2(position.x * 0.0019, position.y * 0.0019));
}

vec4 overlay(vec4 I, float m)
{
    I.rgb *= 255.0;
    vec4 E = (1 - m) * I + m * (I * I * 0.0039);
    E.rgb *= 0.0039;
    return E;
}

vec4 grainMerge(vec4 I, float m)
{
    I.rgb *= 255.0;
    vec4 E = (1 - m) * I + m * I * 0.0039;
    E.rgb *= 0.0039;
    return E;
}

void main()
{
    vec2 npos = vec2(gl_FragCoord.x, gl_FragCoord.y);
    vec4 realColor = sample(MainTexture, npos);
    float val = realColor.r;
    float weight = texture1D(Curve, min(0.999, max(0.0, val))).r;
    gl_FragColor = vec4(weight, weight, weight, weight);
}
