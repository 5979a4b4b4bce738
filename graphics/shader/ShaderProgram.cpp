// SPDX-License-Identifier: MIT
#include "graphics/shader/ShaderProgram.h"

#include <QFile>
#include <QLatin1String>

namespace grisal::graphics
{

namespace
{

void logInfoText(std::vector<GLchar> text)
{
    text.push_back('\0');
    qDebug("%s", text.data());
}

std::string readSource(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("Shader source is missing: %s", qPrintable(path));
        return {};
    }
    return "#version 120\n" + file.readAll().toStdString();
}

/// Runs `set(location)` with the program in use if it has the uniform.
template <typename Setter>
bool withUniform(const ShaderProgram &program, const char *name, Setter set)
{
    glUseProgram(program.program);
    const GLint location = glGetUniformLocation(program.program, name);
    if (location != -1) {
        set(location);
    }
    glUseProgram(0);
    return location != -1;
}

bool bindTexture(const ShaderProgram &program, const char *name, GLenum kind, GLuint texture, std::uint32_t unit)
{
    return withUniform(program, name, [=](GLint location) {
        glActiveTexture(GL_TEXTURE0 + unit);
        glBindTexture(kind, texture);
        glUniform1i(location, static_cast<GLint>(unit));
    });
}

} // namespace

ShaderProgram::ShaderProgram(std::string label, const std::string &vertexSource, const std::string &fragmentSource)
    : name(std::move(label))
{
    const GLuint vertex = compileShader(vertexSource, GL_VERTEX_SHADER).second;
    const GLuint fragment = compileShader(fragmentSource, GL_FRAGMENT_SHADER).second;
    program = linkProgram({vertex, fragment});
    // OpenGL keeps the shader objects as long as they are attached to the program.
    glDeleteShader(vertex);
    glDeleteShader(fragment);
}

ShaderProgram::~ShaderProgram()
{
    glDeleteProgram(program);
}

std::pair<bool, GLuint> compileShader(const std::string &source, GLenum type)
{
    if (source.empty()) {
        return {false, 0};
    }
    const GLuint shader = glCreateShader(type);
    const GLchar *text = source.data();
    const auto length = static_cast<GLint>(source.size());
    glShaderSource(shader, 1, &text, &length);
    glCompileShader(shader);

    GLint compiled = GL_FALSE;
    glGetShaderiv(shader, GL_COMPILE_STATUS, &compiled);
    if (compiled != GL_TRUE) {
        GLint logLength = 0;
        glGetShaderiv(shader, GL_INFO_LOG_LENGTH, &logLength);
        std::vector<GLchar> log(static_cast<std::size_t>(logLength));
        glGetShaderInfoLog(shader, logLength, nullptr, log.data());
        logInfoText(std::move(log));
    }
    return {compiled == GL_TRUE, shader};
}

GLuint linkProgram(const std::vector<GLuint> &shaders)
{
    const GLuint program = glCreateProgram();
    for (const GLuint shader : shaders) {
        glAttachShader(program, shader);
    }
    glLinkProgram(program);

    GLint linked = GL_FALSE;
    glGetProgramiv(program, GL_LINK_STATUS, &linked);
    if (linked == GL_TRUE) {
        return program;
    }
    GLint logLength = 0;
    glGetProgramiv(program, GL_INFO_LOG_LENGTH, &logLength);
    std::vector<GLchar> log(static_cast<std::size_t>(logLength));
    glGetProgramInfoLog(program, logLength, nullptr, log.data());
    logInfoText(std::move(log));
    glDeleteProgram(program);
    return 0;
}

std::string vertexSource()
{
    return readSource(QStringLiteral(":/Shaders/Shared.vert"));
}

std::string fragmentSource(const char *stem)
{
    return readSource(QStringLiteral(":/Shaders/%1.frag").arg(QLatin1String(stem)));
}

bool setUniform1f(const ShaderProgram &program, const char *name, float value)
{
    return withUniform(program, name, [=](GLint location) { glUniform1f(location, value); });
}

bool setUniform3f(const ShaderProgram &program, const char *name, float x, float y, float z)
{
    return withUniform(program, name, [=](GLint location) { glUniform3f(location, x, y, z); });
}

bool bindTexture1D(const ShaderProgram &program, const char *name, GLuint texture, std::uint32_t unit)
{
    return bindTexture(program, name, GL_TEXTURE_1D, texture, unit);
}

bool bindTexture2D(const ShaderProgram &program, const char *name, GLuint texture, std::uint32_t unit)
{
    return bindTexture(program, name, GL_TEXTURE_2D, texture, unit);
}

void runPass(const ShaderProgram &program, std::int32_t width, std::int32_t height, GLuint sourceTexture,
             const FramebufferObject &target)
{
    bindTexture2D(program, "MainTexture", sourceTexture, unit::source);
    renderToFramebuffer(width, height, program.program, target);
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, 0);
}

} // namespace grisal::graphics
