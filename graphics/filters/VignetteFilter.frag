// SPDX-License-Identifier: MIT
// Darkens the image with the distance from a centre.
//   MainTexture          the image
//   VignetteCenter       x and y in percent of MaxWidth and MaxHeight; y counts from the first row of the target
//   Strength             percent; 0 leaves the image unchanged
//   Radius               distance at which Strength is reached, in percent of the mean of MaxWidth and MaxHeight
//   MaxWidth, MaxHeight  size of the whole image in pixels
//   Width, Height        size of the pass in pixels
//   NoiseMap             unused

uniform float Width;
uniform float Height;
uniform float MaxWidth;
uniform float MaxHeight;
uniform vec3 VignetteCenter;
uniform float Strength;
uniform float Radius;
uniform sampler2D MainTexture;
uniform sampler2D NoiseMap;

vec4 sample(sampler2D tex, vec2 position)
{
    return texture2D(tex, vec2(position.x / Width, position.y / Height));
}

vec4 noiseSample(sampler2D tex, vec2 position)
{
    return texture2D(tex, vec2(position.x * 0.01, position.y * 0.01));
}

vec4 overlay(vec4 I, float m)
{
    I.rgb *= 255.0;
    vec4 E = (1 - m) * I + m * (I * I * 0.0039);
    E.rgb *= 0.0039;
    return E;
}

void main()
{
    vec4 currentColor = sample(MainTexture, vec2(gl_FragCoord.x, gl_FragCoord.y));
    if (Strength > 0.0) {
        vec2 currentPosition = vec2(gl_FragCoord.x, gl_FragCoord.y);
        vec2 centerPosition = (VignetteCenter.xy);
        centerPosition.x = (MaxWidth * 0.01 * centerPosition.x);
        centerPosition.y = (MaxHeight * 0.01 * centerPosition.y);
        float currentDistance = abs(distance(centerPosition, currentPosition));
        float maxDistance = Radius * 0.01 * ((MaxWidth + MaxHeight) * 0.5);
        float vignetteValue = Strength * 0.01 * currentDistance / maxDistance;
        currentColor = overlay(currentColor, vignetteValue);
    }
    gl_FragColor = currentColor;
}
