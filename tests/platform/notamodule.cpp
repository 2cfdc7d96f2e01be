// A library like any other, without a module's entry points.
extern "C" __attribute__((visibility("default"))) int answer()
{
    return 42;
}
