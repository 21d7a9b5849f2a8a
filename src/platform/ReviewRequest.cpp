#include "ReviewRequest.h"

bool ReviewRequest::requestInFirstWindowScene()
{
    return false;
}
