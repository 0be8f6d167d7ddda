//==== top.v ====
//top a
//
// synthesis VERILOG_INPUT_VERSION VERILOG_2001
// qelvar message_off 10463



// (legal notice)




//wide d q
//

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top_mgul
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [1:0]  d;
	output   [1:0]  q;


	assign
		q = (~ d);
endmodule //top_mgul

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top
	( 
	a,
	y,
	z) /* synthesis synthesis_lumenbox=1 */;
	input   [1:0]  a;
	output   [1:0]  y;
	output   [1:0]  z;

	wire  [1:0]   wire_w_q;
	wire  [1:0]   wire_x_0q;

	top_mgul   w_0
	( 
	.d(a),
	.q(wire_w_q[1:0]));
	top_mgul   x_0
	( 
	.d(wire_w_q),
	.q(wire_x_0q[1:0]));
	assign
		y = wire_w_q,
		z = wire_x_0q;
endmodule //top
//VALID FILE
