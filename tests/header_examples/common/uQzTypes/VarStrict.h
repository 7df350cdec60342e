inline qz::Variant Value;
