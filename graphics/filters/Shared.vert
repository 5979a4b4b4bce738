// SPDX-License-Identifier: MIT
// The vertex shader of every filter.

void main()
{
    gl_Position = gl_ModelViewProjectionMatrix * gl_Vertex;
    gl_TexCoord[0] = gl_MultiTexCoord0;
}
