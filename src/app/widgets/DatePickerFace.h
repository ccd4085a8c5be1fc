#pragma once
// The part of the picker that holds the fields: it draws one line-edit
// frame around them all, so the fields and separators read as a single
// text box, and shows the keyboard focus of any field inside it.

#include <QWidget>

#include <array>

class DatePickerFace : public QWidget {
 public:
  explicit DatePickerFace(QWidget* parent);

  // The height of a line edit in the current style and font: the picker is
  // as tall as the text boxes beside it.
  static int lineEditHeight(const QWidget* like);
  // The frame's width on each side.
  int frameWidth() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// Makes screen readers present every DatePickerWidget as a group named
// after its label; safe to call more than once.
void installDatePickerAccessibility();

// The row of fields: lays them out with a gap between neighbours and draws
// the separator in each gap ("-" between date fields, ":" between time
// fields, "." before the milliseconds, nothing between date and time).
// Drawn rather than made of labels, so screen readers meet only fields.
class DatePickerFieldRow : public QWidget {
 public:
  static constexpr int kFieldCount = 7;
  explicit DatePickerFieldRow(QWidget* parent);

  // fields[i] is the editor of field i, or null when the layout lacks it.
  void setFields(const std::array<QWidget*, kFieldCount>& fields);
  void setDrawSeparators(bool draw);
  // Gaps wide enough for the separators in the current font.
  void updateSpacing();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  static QString separatorBefore(int field);
  // Where a field's digits end (right) or begin (left), in row coordinates.
  static int textEdge(const QWidget* field, bool right);

  std::array<QWidget*, kFieldCount> fields_{};
  bool drawSeparators_ = true;
};
