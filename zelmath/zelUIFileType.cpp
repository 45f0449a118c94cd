#include "zelUIFileType.h"

int FileFilter(ZelUIFileType type)
{
    return 9100 + static_cast<int>(type);
}
