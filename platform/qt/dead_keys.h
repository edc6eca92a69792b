// Windows makes one character of a dead key and the key behind it. Of a dead key the toolkit tells nothing, and of a key that does not
// combine with it twice: a grain would be lost, and another come double.
#pragma once

struct tagMSG;

class DeadKeys {
public:
    // Hears each message to a window while no text is typed there, and makes a dead key a key like any other. True: nobody else is to hear
    // of the message, which is a second character of one key, or of none.
    bool IsStrayCharacter(const tagMSG& message);

private:
    bool expects_character_ = false;  // the toolkit takes it out of the queue with its key
};
