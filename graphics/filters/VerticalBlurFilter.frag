// SPDX-License-Identifier: MIT
// One of the two passes of the separable blur: it blurs along x, despite its name.
//   MainTexture    the image
//   Radius         in pixels; 4 * ceil(Radius) + 1 taps with weights exp(-x * x / (1.141 * Radius)); 0 copies the image
//   Sigma          unused
//   Width, Height  size of the pass in pixels

uniform float Width;
uniform float Height;
uniform float Sigma;
uniform float Radius;
uniform sampler2D MainTexture;

vec4 sample(sampler2D tex, vec2 position)
{
    float rw = position.x;
    float rh = position.y;
    return texture2D(tex, vec2(abs(rw / Width), abs(rh / Height)));
}

void main(void)
{
    if (Radius > 0.0) {
        vec4 color = vec4(0.0, 0.0, 0.0, 0.0);
        float i = 0.0;
        float size = 4 * ceil(Radius) + 1;
        float halfSize = float(int(size / 2));
        float div = Radius * 1.141;
        float sum = 0.0;
        while (i < size) {
            float xM = i - halfSize;
            sum += exp((-(xM * xM) / div));
            i += 1.0;
        }
        i = 0.0;
        while (i < size) {
            float xM = i - halfSize;
            color += exp((-(xM * xM) / div)) * sample(MainTexture, vec2(gl_FragCoord.x + xM, gl_FragCoord.y)) / sum;
            i += 1.0;
        }
        gl_FragColor = color;
    } else {
        gl_FragColor = sample(MainTexture, gl_FragCoord.xy);
    }
}
