#include <chrono>
#include <cstdio>
#include <cstring>

#include <dlfcn.h>

namespace
{

// Private memory of the process in kibibytes.
long privateKib()
{
    std::FILE* file = std::fopen("/proc/self/smaps_rollup", "r");
    if (file == nullptr)
        return 0;
    long total = 0;
    char line[256];
    while (std::fgets(line, sizeof line, file) != nullptr)
    {
        long value = 0;
        if (std::sscanf(line, "Private_Dirty: %ld", &value) == 1)
            total += value;
    }
    std::fclose(file);
    return total;
}

bool load(const char* path)
{
    if (dlopen(path, RTLD_LAZY | RTLD_GLOBAL) != nullptr)
        return true;
    std::fprintf(stderr, "%s\n", dlerror());
    return false;
}

} // namespace

// Loads the libraries under ours first, then ours, and prints what the second step took: microseconds, kibibytes.
int main(int argc, char** argv)
{
    if (argc < 2)
        return 2;
    for (int i = 1; i < argc - 1; ++i)
    {
        if (!load(argv[i]))
            return 1;
    }
    privateKib();
    const long before = privateKib();
    const auto start = std::chrono::steady_clock::now();
    if (!load(argv[argc - 1]))
        return 1;
    const auto end = std::chrono::steady_clock::now();
    const long after = privateKib();
    std::printf("%.1f %ld\n", std::chrono::duration<double, std::micro>(end - start).count(), after - before);
    return 0;
}
