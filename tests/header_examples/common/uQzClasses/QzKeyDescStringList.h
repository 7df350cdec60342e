inline qz::TQzKeyDescStringList* List;
