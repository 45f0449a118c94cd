#include "springModule.h"
#include "zelCheck.h"
#include "zelModuleRegistry.h"

#include <iostream>

// Checks and calculates descriptions without a display. Modules of the workbench are registered
// here.
int main(int argc, char *argv[])
{
    ZelModuleRegistry registry;
    registerSpringModule(registry);
    return zelCheckMain(std::vector<std::string>(argv + 1, argv + argc), std::cout, std::cerr,
                        registry);
}
