#include <axes/AxesCombination.h>

#include <cstdio>

int main()
{
    AxesCombination combination;
    std::printf("default scales: %d %d\n", combination.getDefaultScaleX(), combination.getDefaultScaleY());
}
