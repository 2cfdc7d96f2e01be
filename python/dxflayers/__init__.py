"""The layers of DXF drawings, edited without losing a byte."""

from ._dxflayers import Drawing, Error, Finding, Layer, Mapping, Step, open, use_language

__all__ = ["Drawing", "Error", "Finding", "Layer", "Mapping", "Step", "open", "use_language"]
