#include "OdAlloc.h"
#include "RxObject.h"

#include <cstdlib>
#include <new>

void* odrxAlloc(std::size_t size)
{
    return std::malloc(size ? size : 1);
}

void odrxFree(void* memory)
{
    std::free(memory);
}

void* OdRxObject::operator new(std::size_t size)
{
    for (;;) {
        if (void* memory = odrxAlloc(size))
            return memory;
        const std::new_handler handler = std::get_new_handler();
        if (!handler)
            throw std::bad_alloc();
        handler();
    }
}
