#include "app/startup/MultiWindowWiring.h"

// TODO(merge): when app/multi/MultiFileWindow.h is on this branch, replace
// the body with:
//   return [](std::unique_ptr<LumMultiFileDoc> document, AppContext& context) -> DocumentWindow* {
//     return new MultiFileWindow(std::move(document), context);
//   };
// (and #include "app/multi/MultiFileWindow.h"). Until then files opened
// together are read but get no window.
DocumentController::MultiWindowFactory multiWindowFactory() { return {}; }
