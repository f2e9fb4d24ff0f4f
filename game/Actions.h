#pragma once

/// Fills the key mapper with every action and its default key and button, and then reads the bind
/// file.
void mapActions();
