#pragma once
// How the running program makes its multi-file windows.

#include "app/DocumentController.h"

DocumentController::MultiWindowFactory multiWindowFactory();
