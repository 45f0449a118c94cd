#include "zelQtInputPriority_p.h"

void takeHighPriority(ZelQtValueEdit *)
{
}
