#include "bench/DimeLoad.h"

#include <dime/Input.h>
#include <dime/Model.h>

namespace bench {

bool loadWithDime(const char *path)
{
    dimeInput input;
    if (!input.setFile(path))
        return false;
    dimeModel model;
    return model.read(&input);
}

} // namespace bench
