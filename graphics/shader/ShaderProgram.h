// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/Framebuffers.h"

#include <string>
#include <utility>
#include <vector>

namespace grisal::graphics
{

/// A GLSL 1.20 program that consists of a vertex shader and a fragment shader.
///
/// The context must be current at construction and destruction. A compile or link failure is logged (debug level) with
/// the message of the OpenGL driver; `program` is then 0, and passes drawn with it use the fixed-function pipeline.
class ShaderProgram
{
public:
    /// `vertexSource` and `fragmentSource` are complete sources, version line included. `label` is the name of the
    /// program in this code; it is not passed to OpenGL.
    ShaderProgram(std::string label, const std::string &vertexSource, const std::string &fragmentSource);
    ShaderProgram(const ShaderProgram &) = delete;
    ShaderProgram &operator=(const ShaderProgram &) = delete;
    ~ShaderProgram();

    GLuint program = 0;
    std::string name;
};

/// Compiles a shader and returns whether it succeeded, with the shader name. The caller owns the name even if the
/// compilation failed. An empty source gives (false, 0) without an OpenGL call.
std::pair<bool, GLuint> compileShader(const std::string &source, GLenum type);

/// Links shaders into a new program, which the caller owns. Returns 0 if linking failed.
GLuint linkProgram(const std::vector<GLuint> &shaders);

/// Returns the source of the vertex shader that all programs share, version line included.
std::string vertexSource();

/// Returns the source of the fragment shader `stem`.frag in the Qt resources, version line included. If there is no
/// such file, it logs a warning and returns an empty string.
std::string fragmentSource(const char *stem);

/// Each sets a uniform of the program and leaves no program in use. If the program has no such uniform, or if the
/// shader compiler removed it as unused, it does nothing and returns false.
bool setUniform1f(const ShaderProgram &program, const char *name, float value);
bool setUniform3f(const ShaderProgram &program, const char *name, float x, float y, float z);

/// Each binds a texture to a unit, sets a sampler uniform to this unit as the setters above do, and leaves the unit
/// active. If the program has no such uniform, nothing is bound.
bool bindTexture1D(const ShaderProgram &program, const char *name, GLuint texture, std::uint32_t unit);
bool bindTexture2D(const ShaderProgram &program, const char *name, GLuint texture, std::uint32_t unit);

/// Runs a filter pass: draws width x height pixels of `target` with `sourceTexture` as MainTexture. Afterwards
/// framebuffer 0 is bound, and unit 0 is active with no 2D texture bound to it.
void runPass(const ShaderProgram &program, std::int32_t width, std::int32_t height, GLuint sourceTexture,
             const FramebufferObject &target);

} // namespace grisal::graphics
