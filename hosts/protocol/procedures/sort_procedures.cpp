// The line dialog's sort routines. They can be called by their own names and by the dialog's.

#include "hosts/protocol/procedures/control_procedures.h"
#include "platform/run_time_error.h"

namespace awizo::protocol {

namespace {

using Keys = const std::vector<std::string>&;
using Index = std::vector<std::int32_t>&;

/// The stack's bound as a caller passes it; a line must not use up the machine's memory with it.
std::int32_t bound(std::int32_t size) {
  constexpr std::int32_t most = 10'000'000;
  if (size > most) throw errors::outOfMemory();
  return size;
}

void addWhole(Procedures& procedures, const std::string& owner, DlgDodaj& dialog) {
  procedures.add(owner + "QuickSort",
                 [&](Keys keys, Index index, std::int32_t left, std::int32_t right) {
                   dialog.touch().sorter().QuickSort(keys, index, left, right);
                 });
  procedures.add(owner + "QuickSortU", [&](Keys keys, Index index, std::int32_t left,
                                           std::int32_t right, std::int32_t size) {
    dialog.touch().sorter().QuickSortU(keys, index, left, right, bound(size));
  });
  procedures.add(owner + "QuickSortNumbers",
                 [&](Keys keys, Index index, std::int32_t left, std::int32_t right) {
                   dialog.touch().sorter().QuickSortNumbers(keys, index, left, right);
                 });
  procedures.add(owner + "ReDimSplitArrays",
                 [&](std::int32_t n) { dialog.touch().sorter().ReDimSplitArrays(bound(n)); });
  procedures.add(owner + "CompareNumbers", [&](const std::string& a, const std::string& b) {
    return dialog.touch().sorter().CompareNumbers(a, b);
  });
  procedures.add(owner + "ToNumberOrMinusOne", [&](const std::string& text) {
    return dialog.touch().sorter().ToNumberOrMinusOne(text);
  });
}

void addSteps(Procedures& procedures, const std::string& owner, DlgDodaj& dialog) {
  procedures.add(owner + "IQuickSort",
                 [&](Keys keys, Index index, std::int32_t left, std::int32_t right) {
                   dialog.touch().sorter().IQuickSort(keys, index, left, right);
                 });
  procedures.add(owner + "IQuickSortNumbers",
                 [&](Keys keys, Index index, std::int32_t left, std::int32_t right) {
                   dialog.touch().sorter().IQuickSortNumbers(keys, index, left, right);
                 });
  procedures.add(owner + "Partition", [&](Keys keys, Index index, std::int32_t left,
                                          std::int32_t right, std::int32_t& pivot) {
    pivot = dialog.touch().sorter().Partition(keys, index, left, right);
  });
  procedures.add(owner + "PartitionNumbers", [&](Keys keys, Index index, std::int32_t left,
                                                 std::int32_t right, std::int32_t& pivot) {
    pivot = dialog.touch().sorter().PartitionNumbers(keys, index, left, right);
  });
  procedures.add(owner + "PutSplitAreas", [&](std::int32_t left, std::int32_t right) {
    dialog.touch().sorter().PutSplitAreas(left, right);
  });
  procedures.add(owner + "GetSplitAreas", [&](std::int32_t& left, std::int32_t& right) {
    std::tie(left, right) = dialog.touch().sorter().GetSplitAreas();
  });
}

}  // namespace

void addSortProcedures(Procedures& procedures, AwizoWysylki& control) {
  for (const char* owner : {"", "DlgDodaj."}) {
    addWhole(procedures, owner, control.dlgDodaj);
    addSteps(procedures, owner, control.dlgDodaj);
  }
}

}  // namespace awizo::protocol
