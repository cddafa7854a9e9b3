// A set of rows held at the client, over a statement of the system's dialect or the name of a table.
//
// Reading: Open, RecordCount, MoveFirst..., rs["COLUMN"] (any case, accents and cedilla included).
// Editing: AddNew or a current row (Edit, or the first Set), Set, Update; CancelUpdate gives the pending edit up. A
// pessimistic set holds the row against other terminals from Edit on; without Edit, while Update writes. An update
// names the key and the original values of the columns that it writes: a row that changed meanwhile raises 0x80040E38.
// A set can be written when it shows one table whole rows of which are known (hidden keys are added by the layer), or
// when Unique_Table says which of the joined tables is the one to write. Opening enters the set in the registry of open
// recordsets, closing (by the destructor too) takes it out.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/dades/Cataleg.h"
#include "core/dades/Connexio.h"
#include "core/dades/Valor.h"

enum class Edicio { Cap, Canvi, Alta };

class Recordset {
 public:
  static constexpr std::int64_t posicio_inici = -2;  // before the first row
  static constexpr std::int64_t posicio_final = -3;  // past the last row

  Recordset();
  // Opens at once.
  Recordset(std::string_view font, Connexio& connexio, Bloqueig bloqueig = Bloqueig::Lectura);
  ~Recordset();
  Recordset(const Recordset&) = delete;
  Recordset& operator=(const Recordset&) = delete;

  void Unique_Table(std::string taula);  // before Open
  void Open(std::string_view font, Connexio& connexio, Bloqueig bloqueig = Bloqueig::Lectura);
  // Another statement with the parameters of before; when it fails the old one stays open with its rows.
  void Reopen(std::string_view font);
  void Requery();  // keeps the filter; first row current. When it fails the rows of before stay
  void Close() noexcept;
  bool State() const;  // open
  const std::string& Source() const;

  std::int64_t RecordCount() const;  // of the rows that the filter lets through
  bool Eof() const;
  bool Bof() const;
  void MoveFirst();
  void MoveLast();
  void MoveNext();
  void Move(std::int64_t files);                 // from the current row; past an end leaves Bof or Eof set
  void Move_Des_Del_Primer(std::int64_t files);  // from the first row
  std::int64_t AbsolutePosition() const;         // 1 for the first row, or one of the marks; -1 on an empty set
  void AbsolutePosition(std::int64_t posicio);

  const std::vector<Camp>& Fields() const;
  int Index_Camp(std::string_view nom) const;    // raises 1005 when there is none
  Valor operator[](std::string_view nom) const;  // of the current row, pending edit included
  Valor operator[](int camp) const;
  // Of any visible row, counted from 0, without moving: for grids.
  Valor Valor_De_Fila(std::int64_t fila, int camp) const;

  // FIELD LIKE '%x%', or comparisons joined by AND; the empty text takes the filter off.
  void Filter(std::string_view condicio);
  const std::string& Filter() const;

  void AddNew();
  void Edit();                                         // of the current row, which a pessimistic set holds from now on
  void Set(std::string_view nom, const Valor& valor);  // starts an edit of the current row when none is pending
  void Update();
  void CancelUpdate() noexcept;
  void Delete();
  Edicio EditMode() const;
  bool Te_Canvis() const;  // the pending edit would write something

 private:
  struct Interior;
  std::unique_ptr<Interior> d_;
};

// The registry of open recordsets, by their source text; two with the same source share one entry, which stays as long
// as either is open. Open and Close keep it by themselves.
void Registrar_Recordset(Recordset& rs);
void Desregistrar_Recordset(Recordset& rs);
// Closes every registered recordset and empties the registry (before a backup).
void Tancar_Recordsets();
std::size_t Comptar_Recordsets_Oberts();
bool Recordset_Registrat(std::string_view font);
