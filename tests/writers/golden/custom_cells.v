//top d
//
// synthesis VERILOG_INPUT_VERSION VERILOG_2001
// qelvar message_off 10463



// (legal notice)



//synthesis_resources = inv 6 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top
	( 
	d,
	y) /* synthesis synthesis_lumenbox=1 */;
	input   [5:0]  d;
	output   [5:0]  y;

	wire	wire_x1_o;
	wire	[1:0]	wire_x2_o;
	wire	[1:0]	wire_x3_o;
	wire  wire_x4_o;

	assign	wire_x1_o = ~d[0];
	// x2[0] in top
	// x2[1] in top
	assign	wire_x2_o = ~d[2:1];
	// x3[0] in top
	// x3[1] in top
	assign	wire_x3_o = ~d[4:3];
	inv   x4
	( 
	.a(d[5]),
	.o(wire_x4_o));
	defparam
		x4.mode = 7,
		x4.lpm_type = "inv";
	assign
		y = {wire_x4_o, wire_x3_o, wire_x2_o, wire_x1_o};
endmodule //top
//VALID FILE
