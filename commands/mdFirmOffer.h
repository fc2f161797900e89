#pragma once

/// Whether to tell the user about "Firm and Team": until it is used or the offer is dismissed.
bool mdFirmIsToBeOffered();

/// The user has used it or dismissed the offer.
void mdFirmOfferAnswered();
