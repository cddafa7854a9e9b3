// How the cells of an editable grid are painted and typed in: check boxes in the middle of their column, combos of
// codes, numbers whose period gives a comma.
#pragma once

#include <QPersistentModelIndex>
#include <QPointer>
#include <QStyledItemDelegate>
#include <QVariant>

class Model_Recordset;

class Delegat_Graella : public QStyledItemDelegate {
 public:
  Delegat_Graella(const Model_Recordset& model, QObject* pare) : QStyledItemDelegate(pare), model_(model) {}

  QWidget* createEditor(QWidget* pare, const QStyleOptionViewItem& opcio, const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
  QWidget* Retingut() const { return retingut_; }  // the editor whose text its cell does not take; null: none
  QModelIndex Cella_Retinguda() const { return cella_; }
  void Deixar_Anar() { retingut_.clear(); }
  // The whole text of a cell that shows a part of it.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* graella, const QStyleOptionViewItem& opcio,
                 const QModelIndex& index) override;
  void paint(QPainter* pintor, const QStyleOptionViewItem& opcio, const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* opcio, const QModelIndex& index) const override;
  bool eventFilter(QObject* editor, QEvent* event) override;
  bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& opcio,
                   const QModelIndex& index) override;

 private:
  QWidget* Nou_Combo(QWidget* pare, const struct Desplegable_Graella& desplegable) const;
  bool Per_Estrenar(const QModelIndex& index) const;  // the empty row at the end

  const Model_Recordset& model_;
  // The editor whose text was refused and told of, and where it stands.
  mutable QPointer<QWidget> retingut_;
  mutable QPersistentModelIndex cella_;
  mutable QVariant refusat_;
};
