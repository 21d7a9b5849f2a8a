#pragma once

// The platform's rating request. Desktop Linux has no such service and no window scene to ask
// in, so no request is ever made there; the counting around it still runs.
namespace ReviewRequest {
// Asks for a review in the first connected window scene; false when there is none.
bool requestInFirstWindowScene();
}
