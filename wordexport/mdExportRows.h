#pragma once

#include "wordexport/mdExportSources.h"

// The tables that occur on both government forms, in different places.

/// The cells of counsel's fees: number, counsel, date, amount with VAT.
extern const std::span<const clsPrintedCell> CounselFeesCells;
/// The placeholders of counsel's page below its grid.
extern const std::span<const clsPlaceholderRow> CounselFeesRows;

/// The twelve cells of an expert's invoice. Its amounts are typed as text: they print as stored, and only the total is
/// formatted. Required behaviour; do not fix.
extern const std::span<const clsPrintedCell> ExpertInvoiceCells;
/// The cells of a joint instruction and of a disbursement that is not counsel's.
extern const std::span<const clsPrintedCell> JointInstructionCells;
extern const std::span<const clsPrintedCell> OtherDisbursementCells;

// Their lists. Experts and joint instructions are printed in their order, the others as stored.
inline constexpr clsPrintedList CounselFeesList
    = {"disbursements", mdOrderIn<&clsZR3Form::CounselDisbursementsCollection>};
inline constexpr clsPrintedList ExpertInvoicesList = {"experts", [](const clsZR3Form &, int i) { return i; }};
inline constexpr clsPrintedList JointInstructionsList = {"joint", [](const clsZR3Form &, int i) { return i; }};
inline constexpr clsPrintedList OtherDisbursementsList
    = {"disbursements", mdOrderIn<&clsZR3Form::NonCounselDisbursementsCollection>};

/// The first page, from the stage number to the costs of the previous advice.
extern const std::span<const clsPlaceholderRow> FirstPageRows;
/// The costs awarded: the amounts before and during the certificate, and everything below the amounts.
extern const std::span<const clsPlaceholderRow> CostsAwardedAmountsRows;
extern const std::span<const clsPlaceholderRow> CostsAwardedRows;
/// Letters out, letters in and calls, two lines each, and their total.
extern const std::span<const clsPlaceholderRow> CommunicationsRows;
/// The whole of the debtor's page.
extern const std::span<const clsPlaceholderRow> DebtorsDetailsRows;
