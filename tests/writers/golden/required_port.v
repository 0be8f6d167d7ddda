//==== top.v ====
//top d
//
// synthesis VERILOG_INPUT_VERSION VERILOG_2001
// qelvar message_off 10463



// (legal notice)



//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	output   [3:0]  q;

	wire  [3:0]   wire_u1_q;

	top_mgg61   u1
	( 
	.q(wire_u1_q));
	assign
		q = wire_u1_q;
	initial/*synthesis enable_verilog_initial_construct*/
 	begin
		$display("Error: GNL_INTERNAL_ERROR: Port top|stage inst u1|d is a required port (has no default value), but it is not connected. CAUSE : The required input port, which has no default port, is not connected. All input ports must either be connected or should have a default value. ACTION : Connect the required input port or if the input port is optional, specify a default value for the input port.");
		$display("Error: GNL_INTERNAL_ERROR: Port top|stage inst u1|d is a required port (has no default value), but it is not connected. CAUSE : The required input port, which has no default port, is not connected. All input ports must either be connected or should have a default value. ACTION : Connect the required input port or if the input port is optional, specify a default value for the input port.");
	end
endmodule //top
//ERROR FILE
//==== posted ====
//ERROR GNL_INTERNAL_ERROR: Port top|stage inst u1|d is a required port (has no default value), but it is not connected. CAUSE : The required input port, which has no default port, is not connected. All input ports must either be connected or should have a default value. ACTION : Connect the required input port or if the input port is optional, specify a default value for the input port.
//==== posted ====
//ERROR GNL_INTERNAL_ERROR: Port top|stage inst u1|d is a required port (has no default value), but it is not connected. CAUSE : The required input port, which has no default port, is not connected. All input ports must either be connected or should have a default value. ACTION : Connect the required input port or if the input port is optional, specify a default value for the input port.
