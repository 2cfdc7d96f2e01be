// An ordinary library without the entry points of a module.
extern "C" __attribute__((visibility("default"))) int answer()
{
    return 42;
}
