#pragma once
// What every window is given by the document controller that makes it.

class AppActions;
class Prompts;
class Settings;

struct AppContext {
  Settings& settings;
  Prompts& prompts;
  AppActions& actions;
};
