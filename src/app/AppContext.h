#pragma once
// What every window is given by the document controller that makes it.

class AppActions;
class Prompts;
class Settings;
class ToolWindows;

struct AppContext {
  Settings& settings;
  Prompts& prompts;
  AppActions& actions;
  // The inspector, image viewer and calculator; null where a test makes
  // document windows without them.
  ToolWindows* tools = nullptr;
};
