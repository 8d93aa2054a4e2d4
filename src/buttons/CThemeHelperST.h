// Access to the theme's drawing of push buttons.
#pragma once

class CThemeHelperST {};
