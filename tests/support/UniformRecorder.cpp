// SPDX-License-Identifier: MIT
#include "tests/support/UniformRecorder.h"

#include <utility>

namespace grisal::test
{

namespace
{

struct Entry {
    GLuint program;
    GLint location; ///< of the OpenGL driver, -1 if the program does not have the uniform
    SentUniform uniform;
};

std::vector<Entry> entries;
PFNGLGETUNIFORMLOCATIONPROC realLocation = nullptr;
PFNGLUNIFORM1FPROC realUniform1f = nullptr;
PFNGLUNIFORM3FPROC realUniform3f = nullptr;
PFNGLUNIFORM1IPROC realUniform1i = nullptr;

/// Returns the index of the entry as location.
GLint GLAPIENTRY findLocation(GLuint program, const GLchar *name)
{
    entries.push_back({program, realLocation(program, name), {name, {}}});
    return static_cast<GLint>(entries.size()) - 1;
}

/// Records the values and returns the OpenGL driver's location.
GLint record(GLint location, std::vector<float> values)
{
    Entry &entry = entries.at(static_cast<std::size_t>(location));
    entry.uniform.values = std::move(values);
    return entry.location;
}

// The OpenGL driver ignores values for location -1.
void GLAPIENTRY recordUniform1f(GLint location, GLfloat value)
{
    realUniform1f(record(location, {value}), value);
}

void GLAPIENTRY recordUniform3f(GLint location, GLfloat x, GLfloat y, GLfloat z)
{
    realUniform3f(record(location, {x, y, z}), x, y, z);
}

void GLAPIENTRY recordUniform1i(GLint location, GLint value)
{
    realUniform1i(record(location, {static_cast<float>(value)}), value);
}

} // namespace

std::ostream &operator<<(std::ostream &out, const SentUniform &uniform)
{
    out << uniform.name << " =";
    for (const float value : uniform.values) {
        out << ' ' << value;
    }
    return out;
}

UniformRecorder::UniformRecorder()
{
    entries.clear();
    realLocation = std::exchange(__glewGetUniformLocation, findLocation);
    realUniform1f = std::exchange(__glewUniform1f, recordUniform1f);
    realUniform3f = std::exchange(__glewUniform3f, recordUniform3f);
    realUniform1i = std::exchange(__glewUniform1i, recordUniform1i);
}

UniformRecorder::~UniformRecorder()
{
    __glewGetUniformLocation = realLocation;
    __glewUniform1f = realUniform1f;
    __glewUniform3f = realUniform3f;
    __glewUniform1i = realUniform1i;
}

std::vector<SentUniform> UniformRecorder::sent() const
{
    std::vector<SentUniform> uniforms;
    for (const Entry &entry : entries) {
        uniforms.push_back(entry.uniform);
    }
    return uniforms;
}

std::vector<GLuint> UniformRecorder::programs() const
{
    std::vector<GLuint> programs;
    for (const Entry &entry : entries) {
        if (programs.empty() || programs.back() != entry.program) {
            programs.push_back(entry.program);
        }
    }
    return programs;
}

} // namespace grisal::test
