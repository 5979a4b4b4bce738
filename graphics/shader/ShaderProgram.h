// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/Framebuffers.h"

#include <string>
#include <utility>
#include <vector>

namespace grisal::graphics
{

/// A GLSL 1.20 program of one vertex and one fragment shader.
///
/// The context must be current for construction and destruction. A compile or link failure is written to the log
/// (debug channel) with the driver's own text; `program` is then 0 and passes drawn with it use the fixed-function
/// pipeline.
class ShaderProgram
{
public:
    /// `vertexSource` and `fragmentSource` are complete sources, version line included. `label` identifies the
    /// program to people; GL does not get it.
    ShaderProgram(std::string label, const std::string &vertexSource, const std::string &fragmentSource);
    ShaderProgram(const ShaderProgram &) = delete;
    ShaderProgram &operator=(const ShaderProgram &) = delete;
    ~ShaderProgram();

    GLuint program = 0;
    std::string name;
};

/// Compiles one shader. An empty source gives (false, 0) without a GL call. The caller owns the shader name, which is
/// returned whether or not it compiled.
std::pair<bool, GLuint> compileShader(const std::string &source, GLenum type);

/// Links shaders into a new program, which the caller owns; 0 if linking failed.
GLuint linkProgram(const std::vector<GLuint> &shaders);

/// The vertex shader that all programs share, version line included.
std::string vertexSource();

/// The fragment shader of the given file stem out of the program's resources, version line included.
/// An unknown stem gives an empty text and a warning in the log.
std::string fragmentSource(const char *stem);

/// Each sets one uniform of the program and leaves no program in use. A uniform that the program lacks (or that its
/// compiler removed as unused) is skipped silently; the return value tells whether it was there.
bool setUniform1f(const ShaderProgram &program, const char *name, float value);
bool setUniform3f(const ShaderProgram &program, const char *name, float x, float y, float z);

/// Each binds a texture to a unit and points a sampler at it, as the setters above. The unit stays active.
bool bindTexture1D(const ShaderProgram &program, const char *name, GLuint texture, std::uint32_t unit);
bool bindTexture2D(const ShaderProgram &program, const char *name, GLuint texture, std::uint32_t unit);

/// One filter pass: `sourceTexture` as MainTexture, drawn over width x height pixels of `target`.
/// Afterwards framebuffer 0 is bound, unit 0 is active and holds no 2D texture.
void runPass(const ShaderProgram &program, std::int32_t width, std::int32_t height, GLuint sourceTexture,
             const FramebufferObject &target);

} // namespace grisal::graphics
