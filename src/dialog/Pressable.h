// A button that others can press: F1 the Help button, a double click in a list the OK button.
#pragma once

class Pressable {
  public:
    virtual ~Pressable() = default;

    // What a click does, with the focus move and the guard of a person's click.
    virtual void click() = 0;
    // What a click does, without focus move and guard.
    virtual void press() = 0;
};
