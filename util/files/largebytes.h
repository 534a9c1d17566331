#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>

#include <sys/mman.h>

// Memory for a picture, to be written before it is read: it is not cleared. In huge pages where the system
// has them, since thousands of small ones take longer to come than a picture takes to be compressed.
class LargeBytes
{
public:
    explicit LargeBytes(size_t size)
        : m_size(size), m_data(static_cast<unsigned char *>(std::aligned_alloc(hugePage, wholePages(size))))
    {
        if (!m_data)
            m_size = 0;
        else
            madvise(m_data.get(), wholePages(size), MADV_HUGEPAGE); // refused, small ones do
    }

    unsigned char *data() { return m_data.get(); }
    const unsigned char *data() const { return m_data.get(); }
    // 0 when there was no memory.
    size_t size() const { return m_size; }
    // Leaves the beginning only.
    void truncate(size_t size) { m_size = size; }

private:
    struct Free {
        void operator()(unsigned char *memory) const { std::free(memory); }
    };
    static constexpr size_t hugePage = size_t{2} << 20;
    static size_t wholePages(size_t size) { return (size + hugePage - 1) / hugePage * hugePage; }

    size_t m_size;
    std::unique_ptr<unsigned char[], Free> m_data;
};
