#pragma once
// What both document kinds know of the application's appearance: whether
// it is dark. The windows set it when the application's palette changes, so
// a document can choose colours for what it draws itself.

class LumDocumentAppearance {
 public:
  bool isDarkMode() const { return darkMode_; }
  void setDarkMode(bool dark) { darkMode_ = dark; }
  // The application's appearance changed to dark or light.
  void appEffectiveAppearanceDidChange(bool dark) { setDarkMode(dark); }

 protected:
  ~LumDocumentAppearance() = default;

 private:
  bool darkMode_ = false;
};
