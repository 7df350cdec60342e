inline qz::TQzTypeKind Kind;
