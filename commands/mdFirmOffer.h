#pragma once

/// Whether the user is to be told that there is "Firm and Team": until it is used or the offer is put away.
bool mdFirmIsToBeOffered();

/// The user has used it, or doesn't want to hear of it again.
void mdFirmOfferAnswered();
