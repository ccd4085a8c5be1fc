<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>AppActions</name>
    <message>
        <source>&amp;Open...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Small</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Viewer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day Count Calculator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Lumidate</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChangeByIntervalSheet</name>
    <message>
        <source>Change by Interval</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChangeControls</name>
    <message>
        <source>Mode:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DatePickerStepper</name>
    <message>
        <source>Stepper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step Down</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DatePickerWidget</name>
    <message>
        <source>Year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Millisecond</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IFD</name>
    <message>
        <source>Byte Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Subfile Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subfile Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bits per Sample</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photometric Interpretation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Threshholding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cell Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cell Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Document Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strip Offsets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples per Pixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows per Strip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strip Byte Counts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Min Sample Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max Sample Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X Resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y Resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Planar Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free Offsets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free ByteCounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gray ResponseUnit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gray ResponseCurve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>T4 Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>T6 Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolution Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfer Function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Software</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Artist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Host Computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Predictor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Primary Chromaticities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Halftone Hints</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile Offsets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile Byte Counts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ink Set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ink Names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of Inks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dot Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Target Printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extra Samples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sample Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S Min Sample Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S Max Sample Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfer Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG Proc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG Interchange Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG Interchange Format Lngth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG Restart Interval</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG Lossless Predictors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG Point Transforms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG Q Tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG DC Tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG AC Tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>YCbCr Coefficients</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>YCbCr SubSampling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>YCbCr Positioning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference Black White</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strip Row Counts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>XMP Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IPTC IIM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photoshop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exif</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ICC Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time Zone Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TIFF/EP StandardID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Source Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Image Matching</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maker Note Safety</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown2 0xC6D2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown3 0xC6D3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exposure Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exposure Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spectral Sensitivity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ISO Speed Ratings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OECF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Self Timer Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sensitivity Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SOS (Standard Output Sensitivity)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>REI (Recommended Exposure Index)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ISO Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ISO Speed Latitude yyy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ISO Speed Latitude zzz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exif Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Time Original</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Time Digitized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Google Plus Upload Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset Time Original</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset Time Digitized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Components Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compressed Bits per Pixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shutter Speed Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aperture Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brightness Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exposure Bias Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max Aperture Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subject Distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Metering Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Focal Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subject Area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maker Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subsecond Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subsecond Time Original</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subsecond Time Digitized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Humidity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Water Depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera Elevation Angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flashpix Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel X Dimension</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel Y Dimension</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Related Sound File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DCF Interoperability Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flash Energy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spatial Frequency Response</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Focal Plane X Resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Focal Plane Y Resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Focal Plane Resolution Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subject Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exposure Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sensing Method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CFA Pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom Rendered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exposure Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White Balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Digital Zoom Ratio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Focal Length in 35mm Film</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene Capture Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gain Control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device Setting Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subject Distance Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Unique ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera Owner Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body Serial Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lens Specification</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lens Make</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lens Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lens Serial Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photographer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera Firmware</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RAW Developing Software</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Editing Software</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Metadata Editing Software</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Composite Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source Image Number of Composite Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source Exposure Times of Composite Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interoperability Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interoperability Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Related Image File Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Related Image Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Related Image Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Latitude Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Latitude</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Longitude Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Longitude</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Altitude Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Altitude</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Time Stamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Satellites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Measure Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS DOP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Speed Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Track Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Image Direction Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Image Direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Map Datum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Destination Latitude Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Destination Latitude</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Destination Longitude Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Destination Longitude</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Destination Bearing Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Destination Bearing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Destination Distance Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Destination Distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Processing Method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Area Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Date Stamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Differential</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS HPositioning Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uncompressed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LZW</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG Compression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NEXT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PackBits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparency Mask</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CMYK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>YCbCr</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 Top-Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 Top-Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 Bottom-Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4 Bottom-Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5 Left-Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>6 Right-Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>7 Right-Bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>8 Left-Bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chunky Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Planar Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>inches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>centimeters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Non</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal differencing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Floating point horizontal differencing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Centered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Co-sited</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsafe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Safe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not Defined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aperture Priority</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shutter Priority</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creative Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portrait Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Landscape Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SOS and REI</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SOS and ISO Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>REI and ISO Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SOS, REI and ISO Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Center Weighted Average</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multi-Spot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Partial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Daylight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fluorescent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tungsten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fine Weather</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cloudy Weather</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Daylight Fluorescent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard Light A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard Light B</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard Light C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D55</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D65</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D75</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D50</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ISO Studio Tungsten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other Light Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day White Fluorescent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cool White Fluorescent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White Fluorescent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day White Fluorescent 0230</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cool White Fluorescent 0230</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White Fluorescent 0230</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warm White Fluorescent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Did not Fire</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fired</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fired, Return Light not Detected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fired, Return Light Detected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fired, Compulsory Flash Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fired, Compulsory Flash Mode, Return Light not Detected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fired, Compulsory Flash Mode, Return Light Detected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Did not Fire, Compulsory Flash Suppression Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Did not Fire, Auto Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fired, Auto Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fired, Auto Mode, Return Light not Detected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fired, Auto Mode, Return Light Detected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Flash Function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fired, Red-eye Reduction Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fired, Red-eye Reduction Mode, Return Light not Detected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fired, Red-eye Reduction Mode, Return Light Detected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fired, Compulsory Flash Mode, Red-eye Reduction Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fired, Compulsory Flash Mode, Red-eye Reduction Mode, Return Light not Detected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fired, Compulsory Flash Mode, Red-eye Reduction Mode, Return Light Detected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fired, Auto Mode, Red-eye Reduction Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fired, Auto Mode, Return Light not Detected, Red-eye Reduction Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fired, Auto Mode, Return Light Detected, Red-eye Reduction Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sRGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uncalibrated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One-Chip Color Area Sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two-Chip Color Area Sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Three-Chip Color Area Sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Sequential Area Sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trilinear Sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Sequential Linear Sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanner of Transparent Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanner of Reflex Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DSC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Directly Photographed Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal Process</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom Process</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto Exposure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual Exposure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto Bracket</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto White Balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual White Balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Night Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low Gain Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High Gain Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low Gain Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High Gain Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low Saturation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High Saturation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft Sharpness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hard Sharpness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Macro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distant View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Non-Composite Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General Composite Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Composite Image Captured When Shooting Reserved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>YCbCr 4:2:2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>YCbCr 4:2:0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JFIF Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Density Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X Density</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y Density</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnail Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnail Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dots per inch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dots per cm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Little Endian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Big Endian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photographic Sensitivity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>above sea level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>below sea level</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IPTC</name>
    <message>
        <source>IIM Envelope Record Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Destination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM File Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM File Format Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Service Identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Envelope Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Product ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Envelope Priority</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Date Sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Time Sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Coded Character Set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM UNO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM ARM Identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM ARM Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Application Record Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Object Type Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Object Attribute Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Object Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Edit Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Editorial Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Urgency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Subject Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Supplemental Category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Fixture Identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Keywords</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Content Location Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Content Location Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Release Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Release Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Expiration Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Expiration Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Special Instructions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Action Advised</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Reference Service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Reference Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Reference Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Date Created</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Time Created</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Digital Creation Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Digital Creation Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Originating Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Program Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Object Cycle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM By-line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM By-line Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM City</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Sublocation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Province/State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Country Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Country</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Transmission Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Headline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Credit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Copyright Notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Caption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Writer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Rasterized Caption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Image Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Image Orientation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Language Identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Audio Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Audio Sampling Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Audio Sampling Resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Audio Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Audio Outcue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Object Data Preview File Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Object Data Preview File Format Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Object Data Preview Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM NewsPhoto Record Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Picture Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Image Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Image Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Pixel Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Pixel Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Supplement Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Color Representation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Interchange Color Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Color Sequence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM ICC Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Color Calibration Matrix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Lookup Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Number of Index Entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Color Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Number of Bits per Sample</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Sampling Structure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Scanning Direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Image Rotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Data Compression Method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Quantization Method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM End Points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Excursion Tolerance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Bits per Component</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Maximum Density Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IIM Gamma Compensated Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Analysis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Archive material</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forecast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Obituary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opinion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polls &amp; Surveys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Results Listings &amp; Tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Side bar &amp; Supporting information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transcript &amp; Verbatim</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From the Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retrospective</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrap-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press Release</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info (Photoshop 2.0)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Macintosh Print Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>XML Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Indexed Color Table (Photoshop 2.0)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolution Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Names of the Alpha Channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display Info (Obsolete)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Caption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Border Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grayscale and Multichannel Halftoning Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Halftoning Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duotone Halftoning Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grayscale and Multichannel Transfer Function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Transfer Functions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duotone Transfer Functions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duotone Image Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effective Black and White</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Obsolete)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EPS Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick Mask Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Working Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layers Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IPTC IIM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grid and Guides</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BGR Thumbnail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copyright Flag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RGB Thumbnail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Global Angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Samplers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ICC Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ICC Untagged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effects Visible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spot Halftone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Document Specific IDs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unicode Alpha Names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Indexed Color Table Count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparency Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Global Altitude</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Workflow URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Jump to XPEP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alpha Identifiers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>URL List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exif</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>XMP Metadata</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Caption Digest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel Aspect Ratio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer Comps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alternate Duotone Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alternate Spot Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer Selection IDs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HDR Toning Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer Groups Enabled ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Samplers Resource</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measurement Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Timeline Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sheet Disclosure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Onion Skins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Count Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Macintosh NSPrintInfo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows DEVMODE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of Clipping Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug-In resources</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Ready Variables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Ready Data Sets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lightroom Workflow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Flags Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IPTC Information Interchange Model</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Save Completed:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save a file Failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save files Failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LocalST_ImagesWindowTitle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document has unsaved changes. Do you want to save the changes before closing?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are opening multiple files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%@ / %lu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How would you like to open them?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A date would leave the range from 0001 to 9999.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edited</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Date-Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore Selected Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore All Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open in One Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open in Separate Windows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Synchronize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multiple Values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are multiple documents with unsaved changes. Do you want to save them before closing?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your changes will be lost if you don&apos;t save them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It uses a file format that Lumidate does not recognize.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An unknown cause.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The files could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Years</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Months</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FileName</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DateTimeOriginal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DateTimeDigitized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DateTime</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore Clicked File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Time Original:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Time Digitized:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Time Edited:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Information</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MultiFileActions</name>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark All Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unmark All Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark Selected Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unmark Selected Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MultiFileWindow</name>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Path:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OpenFileDialog</name>
    <message>
        <source>Photos (*.jpg *.JPG *.jpeg *.JPEG *.tif *.TIF *.tiff *.TIFF)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PhotoView</name>
    <message>
        <source>Photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The photo cannot be shown.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SavingSheet</name>
    <message>
        <source>Saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SingleFileWindow</name>
    <message>
        <source>Change by Interval...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;vert to Saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change by &amp;Interval...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Shows and corrects the dates of photos.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photo files or folders to open.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
