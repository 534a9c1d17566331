#pragma once

#include <unistd.h>
#include <utility>

// Owns an open file, and closes it; -1 is none.
class Descriptor
{
public:
    explicit Descriptor(int descriptor) : m_descriptor(descriptor) {}
    ~Descriptor()
    {
        if (m_descriptor >= 0)
            close(m_descriptor);
    }
    Descriptor(Descriptor &&other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    Descriptor &operator=(Descriptor &&) = delete;
    operator int() const { return m_descriptor; }

private:
    int m_descriptor;
};
